#pragma once

#include <string>

#include "support/Random.h"

namespace clipvane::test {

/// A clip-name comment of an EDL, or something that nearly is one; valid UTF-8.
std::string generateClipNameComment(Random& random);

}  // namespace clipvane::test
