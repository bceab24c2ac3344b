// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Reads timelines and prints a table of what they were read as:
//
//     survey [--lines] FILE-OR-FOLDER ...
//
// With --lines also each line of an EDL that holds four timecodes and did not become an event.

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "Survey.h"
#include "Timelines.h"

namespace {

struct Totals {
    std::size_t timelines = 0;
    std::size_t events = 0;
    std::size_t unread = 0;
    std::size_t failures = 0;
    double milliseconds = 0;
};

/// The places that `text`, valid UTF-8, takes in a line, were every character one wide.
std::size_t widthOf(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string padded(std::string text, std::size_t width) {
    text.append(width - std::min(width, widthOf(text)), ' ');
    return text;
}

void printRow(const std::string& name, const Survey& survey) {
    const std::string unread =
        std::string_view(survey.format) == "EDL" ? std::to_string(survey.unreadLines.size()) : "-";
    std::printf("%s  %-6s  %6s  %-7s  %6zu  %6s  %7.1f ms\n", name.c_str(), survey.format,
                survey.rate.c_str(), survey.isRateNamed ? "file" : "assumed", survey.events,
                unread.c_str(), survey.milliseconds);
}

void printLines(const Survey& survey) {
    for (const UnreadLine& line : survey.unreadLines) {
        std::printf("    %zu: %s\n", line.number, line.text.c_str());
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::filesystem::path> places(argv + 1, argv + argc);
    const bool showLines = !places.empty() && places.front() == "--lines";
    if (showLines) places.erase(places.begin());
    if (places.empty()) {
        std::fputs("usage: survey [--lines] FILE-OR-FOLDER ...\n", stderr);
        return 2;
    }

    Totals totals;
    const auto files = timelinesAt(places, [&](const std::string& sentence) {
        std::fprintf(stderr, "survey: %s\n", sentence.c_str());
        ++totals.failures;
    });
    if (files.empty()) {
        if (totals.failures == 0) std::fputs("survey: no timelines found\n", stderr);
        return 1;
    }

    std::size_t width = 0;
    for (const auto& file : files) width = std::max(width, widthOf(shown(file)));
    std::printf("%s  Format    Rate  From     Events  Unread        Time\n",
                padded("File", width).c_str());
    for (const auto& file : files) {
        const std::string name = padded(shown(file), width);
        const auto surveyed = survey(file);
        if (!surveyed) {
            std::printf("%s  %s\n", name.c_str(), surveyed.error().description.c_str());
            ++totals.failures;
            continue;
        }
        printRow(name, *surveyed);
        if (showLines) printLines(*surveyed);
        ++totals.timelines;
        totals.events += surveyed->events;
        totals.unread += surveyed->unreadLines.size();
        totals.milliseconds += surveyed->milliseconds;
    }
    std::printf("%zu timelines, %zu events, %zu unread lines, %zu failures, %.1f ms\n",
                totals.timelines, totals.events, totals.unread, totals.failures,
                totals.milliseconds);
    return totals.failures == 0 ? 0 : 1;
}
