// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Prints the peak memory of importing a large EDL, as a ratio to the size of the file. A program of
// its own: the peak is the whole process's.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "BenchmarkFile.h"
#include "GeneratedTimeline.h"
#include "import/TimelineParser.h"

namespace {

constexpr std::size_t eventCount = 1'000'000;

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

}  // namespace

int main() {
    using namespace clipvane;
    std::size_t size = 0;
    const BenchmarkFile file(".edl", [&] {
        const std::string text = generatedEDL(eventCount);
        size = text.size();
        return text;
    }());
    // The generated text is gone, but the allocator may keep pages that a child would count.
    const double before = peakOf([] { return true; });
    const double peak = peakOf([&] {
        const auto result = TimelineParser::parse(file.path());
        return result && result->events.size() == eventCount;
    });
    std::printf(
        "import of %zu events, %.0f MB: peak memory %.0f MB (%.0f MB without), ratio %.2f\n",
        eventCount, static_cast<double>(size) / 1e6, peak / 1e6, before / 1e6,
        peak / static_cast<double>(size));
}
