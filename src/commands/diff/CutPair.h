// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <clipvane/diff/CutList.h>
#include "commands/diff/CutEvent.h"

namespace clipvane::diff {

/// Two lists made comparable: their events with the same numbers for the same texts.
struct CutPair {
    Cut oldCut;
    Cut newCut;
    By by = By::reel;
    bool comparesTracks = true;       ///< false: no text in common, or both lists are empty
    std::vector<std::string> tracks;  ///< the text of each track's number, by NEW, then OLD
};

/// Which of the tracks `text` means; nothing when none has a text equivalent to it.
std::optional<std::uint32_t> findTrack(const std::vector<std::string>& tracks,
                                       std::string_view text);

/// Takes what is comparable from two lists. Without `by` it is the reel if both are EDLs, else the
/// name. A reel that says nothing is told apart by the name as well: "AX", an empty one, and one
/// that is the only reel of a list with several names. By name, an event without one falls back on
/// its reel.
CutPair makeComparable(const CutList& oldList, const CutList& newList, std::optional<By> by);

}  // namespace clipvane::diff
