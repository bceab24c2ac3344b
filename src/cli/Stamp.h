// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <clipvane/Error.h>

namespace clipvane::cli {

/// An EDL that says its rate in a line "* FPS: 25".
struct StampedEDL {
    std::string text;
    bool showsHiddenEvent = false;  ///< the first one, which a byte-order mark hid before
};

/// The EDL in `bytes` with a line that names `fps`, above zero, before every event and whatever
/// else would name a rate: after the title, else as the first line. All other bytes stay; the
/// line's end is its neighbour's. An EDL that names `fps` comes back as it is.
///
/// Fails for one that names another rate, unless `restamp`: then an earlier stamp is replaced, and
/// where there is none the new one comes first. Fails, too, for UTF-16, and for a result that would
/// not be read as the same events.
Result<StampedEDL> stamped(std::string_view bytes, double fps, bool restamp);

}  // namespace clipvane::cli
