// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Prints the time and the peak memory of importing EDLs of many sizes, for each event and as a
// ratio to the size of the file. A program of its own: the peak is the whole process's.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <clipvane/TimelineParser.h>
#include "BenchmarkFile.h"
#include "GeneratedTimeline.h"
#include "Ratio.h"

namespace {

using namespace clipvane;

/// Runs `action` in a process of its own and returns that process's peak memory in bytes.
template <class Action>
double peakOf(Action action) {
    const pid_t child = fork();
    if (child == 0) _exit(action() ? 0 : 1);
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        std::fputs("the import failed\n", stderr);
        std::exit(1);
    }
    return static_cast<double>(usage.ru_maxrss) * 1024;
}

std::string withCarriageReturns(std::string_view text) {
    std::string result;
    result.reserve(text.size() + text.size() / 32);
    for (const char c : text) {
        if (c == '\n') result += '\r';
        result += c;
    }
    return result;
}

void report(std::size_t events, const char* lineEnds, std::string text) {
    const auto size = static_cast<double>(text.size());
    const BenchmarkFile file(".edl", text);
    text = {};
    const auto import = [&] {
        const auto result = TimelineParser::parse(file.path());
        return result && result->events.size() == events;
    };
    // The program itself, and what the allocator keeps of the generated text, are not the import's.
    const double before = peakOf([] { return true; });
    const double peak = peakOf(import) - before;
    std::vector<double> times;
    for (int i = 0; i < 7; ++i) times.push_back(secondsOf([&] { peakOf(import); }));
    const auto count = static_cast<double>(events);
    std::printf("%9zu  %-5s %9.2f %9.0f %9.2f %9.0f\n", events, lineEnds, size / 1e6,
                median(times) / count * 1e9, peak / size, peak / count);
}

}  // namespace

int main() {
    std::printf("%9s  %-5s %9s %9s %9s %9s\n", "events", "ends", "MB", "ns/event", "peak/size",
                "bytes/event");
    for (const std::size_t events : {1'000U, 10'000U, 100'000U, 1'000'000U, 5'000'000U}) {
        report(events, "LF", generatedEDL(events));
    }
    report(1'000'000, "CR LF", withCarriageReturns(generatedEDL(1'000'000)));
}
