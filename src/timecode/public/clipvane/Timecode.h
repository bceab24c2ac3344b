// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/detail/PackedTimecode.h>

namespace clipvane {

class GrowingText;

// Timecode arithmetic. All counting is non-drop-frame on the frame base of a rate (`frameBase`):
// 29.97 counts 30 frames a second. The ";" of a drop-frame timecode is read and written, but never
// changes a count. Frame rates are in frames per second. A count that leaves the signed 64-bit
// range, and a rate whose base does, are fatal.

/// The frame count of a timecode, or nothing when the text is not one. Lenient on purpose: ";"
/// counts as ":", pieces between colons that are no integers are skipped, and no field is
/// range-checked; exactly four integers must remain.
std::optional<std::int64_t> frames(std::string_view from, double fps);

/// HH:MM:SS:FF, or HH:MM:SS;FF; at least two digits a field, hours beyond 24 as they are. Every
/// field of a negative count carries its own minus sign.
std::string timecode(std::int64_t fromFrames, double fps, bool usesDropFrameSeparator);

/// The timecode at another rate, with a ";" if it had one; a text that is not a timecode comes back
/// unchanged. Rounds to the nearest frame, halves away from zero.
std::string convertTimecode(std::string_view timecode, double from, double to);

/// `convertTimecode` between two rates, prepared once for a long list of timecodes.
class TimecodeConversion {
  public:
    TimecodeConversion(double from, double to);

    /// Converts `timecode` in place and tells whether it was one.
    bool convert(std::string& timecode) const;

    /// Whether the timecode can be converted packed: the rates are usual ones, and the result has
    /// two digits a field.
    bool fits(PackedTimecode timecode) const { return timecode.hours() < hoursThatFit; }

    /// The converted timecode, which must fit.
    PackedTimecode convert(PackedTimecode timecode) const {
        const std::uint8_t frames = newFrames[timecode.frames()];
        if (frames == notAlone || !timecode.isOnTheClock()) return convertByCount(timecode);
        return timecode.withFrames(frames);
    }

  private:
    void prepareFrames();
    PackedTimecode convertByCount(PackedTimecode timecode) const;

    std::int64_t fromBase;
    std::int64_t toBase;
    std::uint32_t hoursThatFit;  ///< none with unusual rates

    // A whole second stays one at any rate. So most timecodes change in their frames alone, and
    // those do not depend on the other fields.
    static constexpr std::uint8_t notAlone = 0xFF;
    std::array<std::uint8_t, 256> newFrames{};  ///< by the byte of the frames, or `notAlone`
};

/// The time between two timecodes, such as "00:00:10:00 (250 frames)"; never below zero. "-" when
/// either is not a timecode.
std::string durationDisplay(std::string_view from, std::string_view to, double fps);

// Put what `durationDisplay` returns. Of packed timecodes, it is counted on `base` frames a second,
// which is at most `PackedTimecode::mostBase`.
void putDuration(GrowingText& text, std::string_view from, std::string_view to, double fps);
void putDuration(GrowingText& text, PackedTimecode from, PackedTimecode to, std::uint32_t base);

}  // namespace clipvane
