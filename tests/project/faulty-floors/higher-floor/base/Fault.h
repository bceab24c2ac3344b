#include "model/TimelineEvent.h"
