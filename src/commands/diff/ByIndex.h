// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace clipvane::diff {

/// Sorts `all` by `indexOf`, which is below `count`, and by `less` where that is equal. Most lists
/// here are in order already, or nearly so, and long: one look tells, and the others are sorted by
/// counting.
template <class T, class IndexOf, class Less>
std::vector<T> sortedByIndex(std::vector<T> all, std::size_t count, IndexOf indexOf, Less less) {
    if (!std::ranges::is_sorted(all, {}, indexOf)) {
        std::vector<std::uint32_t> places(count + 1);
        for (const T& one : all) ++places[indexOf(one) + 1];
        for (std::size_t i = 0; i < count; ++i) places[i + 1] += places[i];
        std::vector<T> sorted(all.size());
        for (T& one : all) sorted[places[indexOf(one)]++] = std::move(one);
        all = std::move(sorted);
    }
    for (auto first = all.begin(); first != all.end();) {
        auto last = first + 1;
        while (last != all.end() && indexOf(*last) == indexOf(*first)) ++last;
        const bool isAlone = last - first == 1;
        if (!isAlone && !std::is_sorted(first, last, less)) std::sort(first, last, less);
        first = last;
    }
    return all;
}

}  // namespace clipvane::diff
