// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace clipvane::test {

/// An event as the judge sees it: texts that are equal or not, byte by byte, and its four times in
/// frames where they are times.
struct JudgedEvent {
    std::string number;
    std::string name;
    std::string reel;
    std::string track;
    std::array<std::string, 4> texts;  ///< source in, source out, record in, record out
    std::array<std::optional<std::int64_t>, 4> times;
};

/// What is to be said of two EDLs, row by row; empty for black.
struct CutVerdict {
    std::vector<std::string> newRows;
    std::vector<std::string> oldRows;
    /// The lines of the report for reading: "TRACK|OLD|NEW|CHANGE", the change only of neighbours
    /// that are one line, and of black.
    std::vector<std::string> lines;
    std::string sums;
    /// For each track on which no events of NEW overlap: from, to, and where it begins in OLD.
    std::map<std::string, std::vector<std::array<std::int64_t, 3>>> stretches;
};

enum class JudgedBy { reel, name, reelAndName };

/// Lays two small lists out frame by frame and goes through the rules of docs/diff.md, one frame at
/// a time and every chain there is. Knows nothing of the program, nor of canonical equivalence: who
/// asks gives it one spelling of a text.
CutVerdict judgeCuts(const std::vector<JudgedEvent>& oldList,
                     const std::vector<JudgedEvent>& newList, JudgedBy by = JudgedBy::reel);

}  // namespace clipvane::test
