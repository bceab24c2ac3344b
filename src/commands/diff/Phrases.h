// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include <clipvane/diff/CutDiff.h>

namespace clipvane::diff {

/// A comparison with the lists that it is of.
struct Compared {
    const CutDiff& diff;
    const CutList& oldList;
    const CutList& newList;
};

/// All that is said of an event of NEW: "trimmed: head 10 shorter; shifted 10 earlier".
std::string phraseOf(const NewEvent& event, const Compared& compared);

/// "gone", "fewer", "not compared".
std::string phraseOf(const OldEvent& event);

/// "black 10 longer".
std::string blackPhrase(std::int64_t longer);

/// "shifted 10 earlier".
std::string shiftPhrase(Word word, std::int64_t shift);

/// The last line of a report: events by word, frames kept, new, again, gone and fewer, and how much
/// longer the cut is.
std::string sumsPhrase(const Sums& sums);

}  // namespace clipvane::diff
