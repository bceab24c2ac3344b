// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutTrims.h"

#include <algorithm>
#include <set>

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;

/// The first of `pieces`, in order, that ends last.
size_t furthest(const Side& side, const std::vector<size_t>& pieces) {
    size_t best = pieces.front();
    for (const size_t p : pieces) {
        if (side.events[p].sourceOut > side.events[best].sourceOut) best = p;
    }
    return best;
}

std::set<int64_t> framesOf(const Event& event) {
    std::set<int64_t> frames;
    for (int64_t f = event.sourceIn; f < event.sourceOut; ++f) frames.insert(f);
    return frames;
}

/// What `pieces` repeat (positive) or leave out (negative) before the one `until` begins.
int64_t seam(const Side& side, const std::vector<size_t>& pieces, size_t until) {
    std::set<int64_t> before;
    for (const size_t p : pieces) {
        if (p == until) break;
        before.merge(framesOf(side.events[p]));
    }
    const std::set<int64_t> own = framesOf(side.events[until]);
    if (*own.begin() > *before.rbegin()) return *before.rbegin() + 1 - *own.begin();
    return std::ranges::count_if(own, [&](int64_t f) { return before.contains(f); });
}

}  // namespace

std::string trimOf(const Layout& layout, const Bonds& bonds, size_t n) {
    const auto& [olds, news] = layout;
    const Event& event = news.events[n];
    const auto& parts = bonds.olds.at(n);
    const size_t first = parts.front();
    if (event.kind != Kind::plain || bonds.between(n, first).isRetimed) return "";

    const auto& pieces = bonds.news.at(first);
    const int64_t head =
        pieces.front() == n ? olds.events[first].sourceIn - event.sourceIn : seam(news, pieces, n);
    const size_t last = furthest(olds, parts);
    const bool isLast = furthest(news, bonds.news.at(last)) == n;
    const int64_t tail = isLast ? event.sourceOut - olds.events[last].sourceOut : 0;
    int64_t inside = 0;
    for (size_t i = 1; i < parts.size(); ++i) inside -= seam(olds, parts, parts[i]);
    if (head == 0 && tail == 0 && inside == 0) return "";
    return " trimmed " + text(head) + ' ' + text(tail) + ' ' + text(inside);
}

}  // namespace clipvane::test::layout
