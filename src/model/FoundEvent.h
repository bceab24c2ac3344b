// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <concepts>
#include <string_view>

#include <clipvane/detail/EventRow.h>
#include <clipvane/detail/PackedTimecode.h>

namespace clipvane {

/// A timecode that a reader found: packed if it has the usual form, otherwise a view of its text.
class FoundTimecode {
  public:
    FoundTimecode() = default;
    FoundTimecode(PackedTimecode packed) : timecode(packed) {}
    template <std::convertible_to<std::string_view> Text>
    FoundTimecode(const Text& text) : odd(text) {
        if (const auto packed = PackedTimecode::pack(odd)) *this = *packed;
    }

    /// The timecode as a row has it; empty if it is not of the usual form.
    RowTimecode usual() const { return timecode; }
    /// The text of any other; empty if it is of the usual form.
    std::string_view oddText() const { return odd; }

  private:
    RowTimecode timecode;
    std::string_view odd;
};

/// What a reader found out about an event. Views, for as long as it takes to append it; but
/// `lines` must lie in a text that the list keeps.
struct FoundEvent {
    std::string_view eventNumber;
    std::string_view clipName{};
    std::string_view reelID;
    std::string_view track;
    std::array<FoundTimecode, 4> timecodes;  ///< source in and out, record in and out
    std::string_view format;
    std::string_view comments{};
    bool highlighted = false;
    std::string_view lines;  ///< the source text, or lines that it is joined of
    bool isJoined = false;
};

}  // namespace clipvane
