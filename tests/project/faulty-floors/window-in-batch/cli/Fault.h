#include "ui/Text.h"
