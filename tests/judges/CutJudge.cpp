// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutJudge.h"

#include "judges/CutBonds.h"
#include "judges/CutChains.h"
#include "judges/CutLayout.h"
#include "judges/CutReport.h"
#include "judges/CutSums.h"
#include "judges/CutWords.h"

namespace clipvane::test {

CutVerdict judgeCuts(const std::vector<JudgedEvent>& oldList,
                     const std::vector<JudgedEvent>& newList, JudgedBy by) {
    using namespace layout;
    Layout layout = layOut(oldList, newList, by);
    pairAll(layout);
    const Bonds bonds = findBonds(layout);
    const Chains chains = findChains(layout, bonds);

    CutVerdict verdict;
    verdict.newRows.resize(newList.size());
    verdict.oldRows.resize(oldList.size());
    const auto ofNews = describeNews(layout, bonds, chains);
    const auto ofOlds = describeOlds(layout, bonds);
    for (std::size_t n = 0; n < ofNews.size(); ++n) {
        verdict.newRows[layout.news.events[n].row] = ofNews[n];
    }
    for (std::size_t o = 0; o < ofOlds.size(); ++o) {
        verdict.oldRows[layout.olds.events[o].row] = ofOlds[o];
    }
    for (const auto& [n, o] : replacements(layout, bonds, chains)) {
        const auto oldRow = static_cast<std::int64_t>(layout.olds.events[o].row);
        verdict.newRows[layout.news.events[n].row] += " in place of " + text(oldRow);
    }
    verdict.lines = linesOf(layout, bonds, chains);
    verdict.sums = sumsOf(layout);
    verdict.stretches = stretchesOf(layout);
    return verdict;
}

}  // namespace clipvane::test
