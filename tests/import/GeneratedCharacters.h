#pragma once

#include <string>
#include <string_view>

#include "support/Random.h"

namespace clipvane::test {

// What every generator of nearly right texts needs. All of it may be torn or ill-formed UTF-8,
// which `replaceInvalidUTF8` then makes of it what a file's reader would.

/// Any code point, of every block alike, or a decimal digit or white space of any script.
std::string anyCharacter(Random& random);

/// Leaves `text` one slip away: a character replaced, taken out, put in, doubled or swapped with
/// its neighbour, bytes torn, or the text cut off.
void slip(Random& random, std::string& text);

}  // namespace clipvane::test
