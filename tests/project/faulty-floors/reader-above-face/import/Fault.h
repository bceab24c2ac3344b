#include <clipvane/TimelineParser.h>
