#include <clipvane/Higher.h>
