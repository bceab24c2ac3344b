// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/detail/PackedTimecode.h>
#include "model/FoundEvent.h"

namespace clipvane {

// Timing values of XML timelines: frame numbers ("250"), seconds ("10s", "1001/30000s") and
// timecodes, at `fps` frames a second. They differ from the timecode arithmetic in two ways: a
// drop-frame separator is never written, and a timecode needs a colon. A count outside 64 bits is
// fatal, as is a number that is not finite.

/// A timing value as an event shows it: the timecode of a frame count, or a text.
class XMLTime {
  public:
    XMLTime() = default;
    explicit XMLTime(std::string_view text) : odd(text) {}
    /// HH:MM:SS:FF; every field of a negative count carries its own minus sign.
    XMLTime(std::int64_t frames, double fps);

    bool isEmpty() const { return !packed && odd.empty(); }
    /// A view of what the list keeps.
    FoundTimecode found() const { return packed ? FoundTimecode(*packed) : FoundTimecode(odd); }
    std::string text() const;

    /// Those of `xmlFrames(text())`.
    std::optional<std::int64_t> frames(double fps) const;

  private:
    std::optional<PackedTimecode> packed;  ///< a count's timecode, if it has two digits a field
    std::string odd;                       ///< any other text
    std::optional<std::int64_t> count;     ///< that the text is written for, if it is
};

/// A timing value as a timecode. A timecode stays as it is, and so does what cannot be understood;
/// empty text and a negative frame number give empty text.
XMLTime xmlTime(std::string_view value, double fps);

/// The frames in a timing value, or nothing when it is none.
std::optional<std::int64_t> xmlFrames(std::string_view value, double fps);

}  // namespace clipvane
