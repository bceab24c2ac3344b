#include "clipvane/Error.h"
