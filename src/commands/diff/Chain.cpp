// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Chain.h"

#include <algorithm>
#include <limits>
#include <span>
#include <tuple>
#include <utility>

namespace clipvane::diff {
namespace {

using Index = std::uint32_t;
constexpr Index none = std::numeric_limits<Index>::max();

/// What a chain is chosen by, up to its last link: frames of shift 0, paired frames, links.
using Weight = std::tuple<std::int64_t, std::int64_t, std::int64_t>;

Weight with(const Weight& weight, const Link& link) {
    const auto& [inPlace, frames, links] = weight;
    return {addChecked(inPlace, link.isInPlace ? link.frames : 0), addChecked(frames, link.frames),
            links + 1};
}

/// The best chain that ends at a link of a given rank in OLD or an earlier one.
struct Best {
    Weight weight;
    Index rank = none;  // of its last link; none for the empty chain

    bool isBetterThan(const Best& other) const {
        if (weight != other.weight) return weight > other.weight;
        return rank < other.rank;
    }
};

/// The best of the first so many ranks: a tree of partial maxima.
class BestOfFirst {
  public:
    explicit BestOfFirst(std::size_t count) : tree(count + 1) {}

    Best first(std::size_t count) const {
        Best best;
        for (std::size_t i = count; i > 0; i &= i - 1) {
            if (tree[i].isBetterThan(best)) best = tree[i];
        }
        return best;
    }

    void add(const Best& best) {
        for (std::size_t i = best.rank + 1; i < tree.size(); i += i & (~i + 1)) {
            if (best.isBetterThan(tree[i])) tree[i] = best;
        }
    }

  private:
    std::vector<Best> tree;
};

template <class Order>
std::vector<Index> sortedBy(const std::vector<Link>& links, Order order) {
    std::vector<Index> indices(links.size());
    for (Index i = 0; i < indices.size(); ++i) indices[i] = i;
    const auto isBefore = [&](Index a, Index b) { return order(links[a]) < order(links[b]); };
    if (!std::ranges::is_sorted(indices, isBefore)) std::ranges::sort(indices, isBefore);
    return indices;
}

std::vector<Index> inNewOrder(const std::vector<Link>& links) {
    return sortedBy(links, [](const Link& l) { return std::tuple(l.newFrom, l.event); });
}

std::vector<Index> inOldOrder(const std::vector<Link>& links) {
    return sortedBy(links, [](const Link& l) { return std::tuple(l.oldFrom, l.partner, l.event); });
}

/// The chain of a block: links of successive ranks, given by rank in the order of NEW.
std::vector<Index> bestOfBlock(std::span<const Index> block, const std::vector<Link>& links,
                               const std::vector<Index>& byRank) {
    const Index lowest = std::ranges::min(block);
    BestOfFirst bests(block.size());
    std::vector<Index> follows(block.size(), none);  // by rank: the rank of the link before
    for (const Index rank : block) {
        const Best before = bests.first(rank - lowest);
        follows[rank - lowest] = before.rank;
        bests.add({with(before.weight, links[byRank[rank]]), rank - lowest});
    }
    std::vector<Index> chain;
    for (Index at = bests.first(block.size()).rank; at != none; at = follows[at]) {
        chain.push_back(lowest + at);
    }
    std::ranges::reverse(chain);
    return chain;
}

/// Whether a chain's link that begins at `begin` or later ends by `end` in the other list.
class LinksBehind {
  public:
    LinksBehind(std::vector<std::int64_t> begins, std::vector<std::int64_t> ends)
        : begins(std::move(begins)), earliestEnd(std::move(ends)) {
        for (std::size_t i = earliestEnd.size(); i-- > 1;) {
            earliestEnd[i - 1] = std::min(earliestEnd[i - 1], earliestEnd[i]);
        }
    }

    bool any(std::int64_t begin, std::int64_t end) const {
        const auto at = std::ranges::lower_bound(begins, begin) - begins.begin();
        const auto i = static_cast<std::size_t>(at);
        return i < begins.size() && earliestEnd[i] <= end;
    }

  private:
    std::vector<std::int64_t> begins;       // in order, as the chain is in both lists
    std::vector<std::int64_t> earliestEnd;  // of the link there and all behind it
};

template <class Field>
std::vector<std::int64_t> fieldOf(const std::vector<Link>& links, const std::vector<Index>& chain,
                                  Field field) {
    std::vector<std::int64_t> values;
    values.reserve(chain.size());
    for (const Index i : chain) values.push_back(links[i].*field);
    return values;
}

}  // namespace

std::vector<Index> findChain(const std::vector<Link>& links) {
    const std::vector<Index> byRank = inOldOrder(links);
    std::vector<Index> rankOf(links.size());
    for (Index rank = 0; rank < byRank.size(); ++rank) rankOf[byRank[rank]] = rank;
    std::vector<Index> ranks;  // in the order of NEW
    ranks.reserve(links.size());
    for (const Index i : inNewOrder(links)) ranks.push_back(rankOf[i]);

    std::vector<Index> chain;
    chain.reserve(links.size());
    Index highest = 0;
    for (std::size_t begin = 0, i = 0; i < ranks.size(); ++i) {
        highest = std::max(highest, ranks[i]);
        // So many links with no rank above: whatever follows, in either list, follows them all.
        if (highest != i) continue;
        if (begin == i) {
            chain.push_back(byRank[i]);
        } else {
            const auto block = std::span(ranks).subspan(begin, i + 1 - begin);
            for (const Index rank : bestOfBlock(block, links, byRank)) {
                chain.push_back(byRank[rank]);
            }
        }
        begin = i + 1;
    }
    return chain;
}

std::vector<bool> findMoved(const std::vector<Link>& links, const std::vector<Index>& chain) {
    if (chain.size() == links.size()) return std::vector<bool>(links.size());
    const LinksBehind behindInNew(fieldOf(links, chain, &Link::newFrom),
                                  fieldOf(links, chain, &Link::oldTo));
    const LinksBehind behindInOld(fieldOf(links, chain, &Link::oldFrom),
                                  fieldOf(links, chain, &Link::newTo));
    std::vector<bool> isOnChain(links.size());
    for (const Index i : chain) isOnChain[i] = true;
    std::vector<bool> moved(links.size());
    for (std::size_t i = 0; i < links.size(); ++i) {
        moved[i] = !isOnChain[i] && (behindInNew.any(links[i].newTo, links[i].oldFrom) ||
                                     behindInOld.any(links[i].oldTo, links[i].newFrom));
    }
    return moved;
}

}  // namespace clipvane::diff
