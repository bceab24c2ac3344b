// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The batch program from its start to its end: one list of real size, and ten thousand small ones
// in one call.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <string>
#include <vector>

#include <clipvane/TimelineParser.h>
#include "BenchmarkFile.h"
#include "GeneratedTimeline.h"
#include "Ratio.h"
#include "base/File.h"

namespace clipvane {
namespace {

constexpr std::size_t realList = 3727;  // events of the largest list that the project was tried on
constexpr std::size_t smallLists = 10'000;

/// Runs a program to its end, its output thrown away. True when it ended well.
bool run(std::vector<std::string> words) {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int descriptor : {1, 2}) {
        posix_spawn_file_actions_addopen(&actions, descriptor, "/dev/null", O_WRONLY, 0);
    }
    pid_t program = 0;
    const int failed =
        ::posix_spawn(&program, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    return failed == 0 && ::waitpid(program, &status, 0) == program && status == 0;
}

/// The floor: a program with the same libraries that does nothing, and the import by itself.
void listOne(benchmark::State& state, const std::string& format) {
    const BenchmarkFile file(".edl", generatedEDL(realList));
    measureAgainstFloor(
        state,
        [&] {
            if (!run({CLIPVANE_CLI, "list", "-q", "-f", format, file.path()})) {
                state.SkipWithError("the program failed");
            }
        },
        [&] {
            if (!run({CLIPVANE_EMPTY})) state.SkipWithError("the empty program failed");
            benchmark::DoNotOptimize(TimelineParser::parse(file.path()));
        });
}

/// The floor: the same program that does nothing, and as many times the file read and parsed.
void listMany(benchmark::State& state) {
    const BenchmarkFile file(".edl", generatedEDL(10));
    std::vector<std::string> words{CLIPVANE_CLI, "list", "-q", "-f", "csv"};
    words.insert(words.end(), smallLists, file.path());
    measureAgainstFloor(
        state,
        [&] {
            if (!run(words)) state.SkipWithError("the program failed");
        },
        [&] {
            if (!run({CLIPVANE_EMPTY})) state.SkipWithError("the empty program failed");
            for (std::size_t i = 0; i < smallLists; ++i) {
                benchmark::DoNotOptimize(TimelineParser::parse(file.path()));
            }
        });
}

BENCHMARK_CAPTURE(listOne, table, "table")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(listOne, csv, "csv")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(listOne, jsonl, "jsonl")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(listMany)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace clipvane
