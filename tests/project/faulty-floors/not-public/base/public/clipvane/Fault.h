#include "base/Number.h"
