// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <cstdio>
#include <random>
#include <string>

#include <clipvane/Timecode.h>
#include <clipvane/TimelineParser.h>
#include <clipvane/diff/CutDiff.h>
#include "GeneratedTimeline.h"
#include "Ratio.h"

namespace clipvane {
namespace {

constexpr diff::Counting counting{25, false};

std::string eventLine(std::size_t number, const std::string& reel, std::int64_t sourceIn,
                      std::int64_t recordIn, std::int64_t length) {
    char columns[64];
    std::snprintf(columns, sizeof columns, "%06zu  %-12s V     C        ", number, reel.c_str());
    return columns + timecode(sourceIn, 25, false) + ' ' + timecode(sourceIn + length, 25, false) +
           ' ' + timecode(recordIn, 25, false) + ' ' + timecode(recordIn + length, 25, false) +
           "\n* FROM CLIP NAME: " + reel + "_T01.MOV\n";
}

/// A cut of `count` shots of two hundred reels; every `editEach`-th one is trimmed, left out or
/// followed by a new one.
std::string longCut(std::size_t count, std::size_t editEach) {
    std::mt19937_64 random(3);
    std::string text = "TITLE: LONG CUT\n";
    std::int64_t place = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string reel = "A" + std::to_string(100 + random() % 200) + "C001";
        const auto in = static_cast<std::int64_t>(random() % 2'000'000);
        auto length = static_cast<std::int64_t>(20 + random() % 40);
        const bool isEdited = editEach != 0 && i % editEach == editEach / 2;
        if (isEdited && i % 3 == 0) continue;
        if (isEdited && i % 3 == 1) length -= 7;
        text += eventLine(i, reel, in, place, length);
        place += length;
        if (isEdited && i % 3 == 2) {
            text += eventLine(i, "X" + std::to_string(i), 0, place, 30);
            place += 30;
        }
    }
    return text;
}

/// Two lists of 100,000 events with 500 edits, compared, against their import.
void compareLongCuts(benchmark::State& state) {
    const std::string oldText = longCut(100'000, 0);
    const std::string newText = longCut(100'000, 200);
    const diff::Events oldEvents = TimelineParser::parseEDL(oldText);
    const diff::Events newEvents = TimelineParser::parseEDL(newText);
    measureAgainstFloor(
        state,
        [&] {
            const auto result = diff::compareCuts({oldEvents, counting}, {newEvents, counting});
            if (result.sums.of(diff::Word::shifted) < 50'000) state.SkipWithError("no edits");
        },
        [&] {
            const auto oldAgain = TimelineParser::parseEDL(oldText);
            const auto newAgain = TimelineParser::parseEDL(newText);
            if (oldAgain.size() != 100'000 || newAgain.empty()) state.SkipWithError("no events");
        });
}
BENCHMARK(compareLongCuts)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

/// Lists that are as hard as can be: the ratio is that of twice as many events to so many.
template <class ListOf>
void measureDoubling(benchmark::State& state, ListOf listOf) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const auto compare = [](const diff::Events& oldEvents, const diff::Events& newEvents) {
        benchmark::DoNotOptimize(diff::compareCuts({oldEvents, counting}, {newEvents, counting}));
    };
    const diff::Events oldOnce = TimelineParser::parseEDL(listOf(count, 0));
    const diff::Events newOnce = TimelineParser::parseEDL(listOf(count, 1));
    const diff::Events oldTwice = TimelineParser::parseEDL(listOf(2 * count, 0));
    const diff::Events newTwice = TimelineParser::parseEDL(listOf(2 * count, 1));
    measureAgainstFloor(
        state, [&] { compare(oldTwice, newTwice); }, [&] { compare(oldOnce, newOnce); });
}

std::string overlapping(std::size_t count, std::int64_t version) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        const auto n = static_cast<std::int64_t>(i);
        text += eventLine(i, "A", n, 3 * n + version * (n % 7), 1'000'000 + n % 11);
    }
    return text;
}

std::string equal(std::size_t count, std::int64_t version) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += eventLine(i, "A", 0, version, 100);
    return text;
}

void doubleOverlappingCuts(benchmark::State& state) {
    measureDoubling(state, overlapping);
}
BENCHMARK(doubleOverlappingCuts)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

void doubleEqualEvents(benchmark::State& state) {
    measureDoubling(state, equal);
}
BENCHMARK(doubleEqualEvents)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace clipvane
