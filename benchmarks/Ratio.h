// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

namespace clipvane {

/// Seconds that `action` takes.
template <class Action>
double secondsOf(Action&& action) {
    const auto start = std::chrono::steady_clock::now();
    std::forward<Action>(action)();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Runs `work` and its floor in turn and reports, beside the work's time, the median time of each
/// ("work_ms", "floor_ms") and their "ratio". Machines differ and are noisy; the ratio to what the
/// machine needs at the very least, taken in the same minute, is what can be compared.
template <class Work, class Floor>
void measureAgainstFloor(benchmark::State& state, Work&& work, Floor&& floor) {
    std::vector<double> works;
    std::vector<double> floors;
    for (auto _ : state) {
        floors.push_back(secondsOf(floor));
        works.push_back(secondsOf(work));
        state.SetIterationTime(works.back());
    }
    state.counters["work_ms"] = median(works) * 1e3;
    state.counters["floor_ms"] = median(floors) * 1e3;
    state.counters["ratio"] = median(works) / median(floors);
}

}  // namespace clipvane
