// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace clipvane {

/// A frame rate that a file names.
struct NamedRate {
    double fps = 0;         ///< as written; infinite or not a number when there are too many digits
    bool isUsable = false;  ///< false when a number is zero that must not be
};

// The four forms in which a timeline file names its frame rate, each matched at the very beginning
// of `text`; nothing when the form does not stand there. Letters match in upper and lower case, and
// U+017F (the long s) as an s. White space is Unicode's and may include line breaks.

/// "frame rate", "framerate" or "fps", then ":" or "=", then a number.
std::optional<NamedRate> matchNamedRate(std::string_view text);

/// "<timebase>", a number, "</timebase>".
std::optional<NamedRate> matchElement(std::string_view text);

/// "timebase=" and a number in quotes of either kind.
std::optional<NamedRate> matchAttribute(std::string_view text);

/// "frameDuration=" and a fraction of a second in quotes, such as "1001/30000s".
std::optional<NamedRate> matchFrameDuration(std::string_view text);

}  // namespace clipvane
