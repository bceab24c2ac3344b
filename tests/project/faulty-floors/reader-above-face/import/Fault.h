#include "import/TimelineParser.h"
