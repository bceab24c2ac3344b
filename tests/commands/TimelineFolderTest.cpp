// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <vector>

#include <clipvane/CSVReport.h>
#include <clipvane/EditedEDL.h>
#include <clipvane/TimelineParser.h>
#include "base/Characters.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

/// HH:MM:SS:FF in digits.
bool isPlain(std::string_view timecode) {
    constexpr std::string_view form = "00:00:00:00";
    return std::ranges::equal(timecode, form, [](char c, char expected) {
        return expected == ':' ? c == ':' : isASCIIDigit(static_cast<unsigned char>(c));
    });
}

/// Whether an EDL can hold the text in one column; an empty one is written as a word.
bool isColumn(std::string_view text) {
    return std::ranges::none_of(text, isASCIIWhiteSpace);
}

using Times = std::array<std::string, 4>;

/// The times of the events that an EDL can hold.
std::vector<Times> plainTimes(const EventList& events) {
    std::vector<Times> all;
    for (const EventView& e : events) {
        const Times times{std::string(e.sourceIn), std::string(e.sourceOut),
                          std::string(e.recordIn), std::string(e.recordOut)};
        const bool fits = isColumn(e.reelID) && isColumn(e.track);
        if (fits && std::ranges::all_of(times, isPlain)) all.push_back(times);
    }
    return all;
}

std::vector<std::filesystem::path> timelinesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        std::string extension = entry.path().extension();
        std::ranges::transform(extension, extension.begin(), asciiLower);
        for (const char* known : {".edl", ".txt", ".xml", ".fcpxml", ".xmeml"}) {
            if (entry.is_regular_file() && extension == known) files.push_back(entry.path());
        }
    }
    return files;
}

/// Every timeline below the folder that CLIPVANE_TIMELINES names goes in, and out again.
TEST(TimelineFolder, EveryFile_IsReadAndExported) {
    const char* const folder = std::getenv("CLIPVANE_TIMELINES");
    if (folder == nullptr) GTEST_SKIP() << "CLIPVANE_TIMELINES is not set";
    ASSERT_TRUE(std::filesystem::is_directory(folder)) << folder;
    const TemporaryFolder exports;
    const auto files = timelinesIn(folder);
    EXPECT_FALSE(files.empty());
    std::size_t count = 0;
    for (const auto& file : files) {
        SCOPED_TRACE(file);
        auto result = TimelineParser::parse(file);
        ASSERT_TRUE(result.has_value()) << result.error().description;
        TimelineDocument document;
        document.events = std::move(result->events);
        document.fps = result->fps;
        document.fpsSource = result->fpsSource;
        count += document.events.size();

        const std::string csv = csvText(document);
        EXPECT_GT(std::ranges::count(csv, '\n'), static_cast<long>(document.events.size()));
        ASSERT_TRUE(writeCSV(document, exports / "a.csv").has_value());
        EXPECT_EQ(contentOf(exports / "a.csv"), csv);

        ASSERT_TRUE(writeEDL(document, exports / "a.edl").has_value());
        const auto again = TimelineParser::parse(exports / "a.edl");
        ASSERT_TRUE(again.has_value());
        EXPECT_EQ(plainTimes(again->events), plainTimes(document.events));
    }
    std::cout << files.size() << " timelines with " << count << " events\n";
}

}  // namespace
}  // namespace clipvane::test
