// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace clipvane {

// Timing values of XML timelines: frame numbers ("250"), seconds ("10s", "1001/30000s") and
// timecodes, at `fps` frames a second. They differ from the timecode arithmetic in two ways: a
// drop-frame separator is never written, and a timecode needs a colon. A count outside 64 bits is
// fatal, as is a number that is not finite.

/// A timing value as an event shows it.
struct XMLTime {
    std::string text;
    std::optional<std::int64_t> frames;  ///< the count that the text was written for, if it was
};

/// A timing value as a timecode. A timecode stays as it is, and so does what cannot be understood;
/// empty text and a negative frame number give empty text.
XMLTime xmlTime(std::string_view value, double fps);

/// HH:MM:SS:FF; every field of a negative count carries its own minus sign.
XMLTime xmlTimeOf(std::int64_t frames, double fps);

/// The frames in a timing value, or nothing when it is none.
std::optional<std::int64_t> xmlFrames(std::string_view value, double fps);
/// Those of `xmlFrames(time.text)`.
std::optional<std::int64_t> xmlFrames(const XMLTime& time, double fps);

}  // namespace clipvane
