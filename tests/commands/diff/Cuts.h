// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <clipvane/TimelineEvent.h>
#include <clipvane/diff/CutDiff.h>
#include "commands/diff/Phrases.h"
#include "judges/CutJudge.h"

namespace clipvane::test {

inline constexpr diff::Counting at25{25.0, false};

/// An event of an EDL as a test writes it: times in frames.
struct Row {
    std::string reel;
    std::int64_t sourceIn = 0;
    std::int64_t sourceOut = 0;
    std::int64_t recordIn = 0;
    std::int64_t recordOut = 0;
    std::string track = "V";
    std::string name = {};
};

/// A row that is as long in the record as in the source.
Row cut(std::string reel, std::int64_t sourceIn, std::int64_t sourceOut, std::int64_t recordIn,
        std::string track = "V", std::string name = "");

/// The rows as the events of an EDL, numbered from 001; without a name they have the one that the
/// reader makes up.
diff::Events eventsOf(const std::vector<Row>& rows);

/// The rows for the judge.
std::vector<JudgedEvent> judgedOf(const std::vector<Row>& rows);

/// The judge's events for the program. Reels and names in odd rows are spelled with combining
/// marks, which must make no difference.
diff::Events eventsOf(const std::vector<JudgedEvent>& judged);

diff::CutDiff compare(const std::vector<Row>& oldRows, const std::vector<Row>& newRows);

/// A comparison in the judge's words, but for the stretches.
CutVerdict verdictOf(const diff::Compared& compared);

/// The report line by line, with rows counted from 1: "X new, in place of 3", "black 10 longer".
std::vector<std::string> reportOf(const diff::CutDiff& diff, const diff::Events& oldEvents,
                                  const diff::Events& newEvents);

}  // namespace clipvane::test
