// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace clipvane {

/// Seconds that `action` takes.
template <class Action>
double secondsOf(Action&& action) {
    const auto start = std::chrono::steady_clock::now();
    std::forward<Action>(action)();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs `work` and its floor in turn and reports, beside the work's time, the best time of each
/// ("work_ms", "floor_ms") and their "ratio". Machines differ and are noisy; the ratio to what the
/// machine needs at the very least, taken in the same minute, is what can be compared.
template <class Work, class Floor>
void measureAgainstFloor(benchmark::State& state, Work&& work, Floor&& floor) {
    double bestWork = std::numeric_limits<double>::infinity();
    double bestFloor = std::numeric_limits<double>::infinity();
    for (auto _ : state) {
        bestFloor = std::min(bestFloor, secondsOf(floor));
        const double seconds = secondsOf(work);
        bestWork = std::min(bestWork, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["work_ms"] = bestWork * 1e3;
    state.counters["floor_ms"] = bestFloor * 1e3;
    state.counters["ratio"] = bestWork / bestFloor;
}

}  // namespace clipvane
