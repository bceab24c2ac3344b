// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Trims.h"

#include <algorithm>
#include <optional>

namespace clipvane::diff {
namespace {

/// What pieces cover from the first one's beginning on, as they are added in source order.
class Reach {
  public:
    /// How far a piece begins behind what is covered: negative by what it repeats.
    std::int64_t add(const CutEvent& piece, std::uint32_t index) {
        if (!end) {
            end = piece.to();
            furthest = index;
            return 0;
        }
        const std::int64_t gap = piece.from() - std::min(*end, piece.to());
        if (piece.to() > *end) {
            end = piece.to();
            furthest = index;
        }
        return gap;
    }

    std::uint32_t furthestPiece() const { return furthest; }

  private:
    std::optional<std::int64_t> end;
    std::uint32_t furthest = 0;  // the first that reaches the end
};

class Finder {
  public:
    explicit Finder(const PartneredCuts& cuts)
        : oldCut(cuts.oldCut),
          newCut(cuts.newCut),
          partners(cuts.partners),
          trims(newCut.size()),
          lastPart(newCut.size()) {}

    std::vector<Trim> find() && {
        for (std::uint32_t n = 0; n < newCut.size(); ++n) lookInside(n);
        for (std::uint32_t o = 0; o < oldCut.size(); ++o) lookAtPieces(o);
        return std::move(trims);
    }

  private:
    void lookInside(std::uint32_t n) {
        const auto parts = partners.ofNew(n);
        if (parts.size() == 1) {
            lastPart[n] = parts.front().oldEvent;
            return;
        }
        Reach reach;
        for (const Partnership& part : parts) {
            const std::int64_t gap = reach.add(oldCut[part.oldEvent], part.oldEvent);
            trims[n].inside = addChecked(trims[n].inside, gap);
        }
        lastPart[n] = reach.furthestPiece();
    }

    void lookAtPieces(std::uint32_t o) {
        const auto pieces = partners.ofOld(o);
        if (pieces.empty() || partners.first(pieces.front()).isRetimed()) return;
        if (pieces.size() == 1) {
            const std::uint32_t n = pieces.front();
            if (partners.first(n).oldEvent == o) lookAtHead(o, n);
            if (lastPart[n] == o) lookAtTail(o, n);
            return;
        }
        Reach reach;
        for (const std::uint32_t n : pieces) {
            const std::int64_t gap = reach.add(newCut[n], n);
            if (partners.first(n).oldEvent != o) continue;
            const bool isFirst = n == pieces.front();
            if (isFirst) {
                lookAtHead(o, n);
            } else {
                trims[n].head = -gap;
            }
        }
        const std::uint32_t last = reach.furthestPiece();
        if (lastPart[last] == o) lookAtTail(o, last);
    }

    void lookAtHead(std::uint32_t o, std::uint32_t n) {
        trims[n].head = oldCut[o].from() - newCut[n].from();
    }
    void lookAtTail(std::uint32_t o, std::uint32_t n) {
        trims[n].tail = newCut[n].to() - oldCut[o].to();
    }

    const Cut& oldCut;
    const Cut& newCut;
    const Partners& partners;
    std::vector<Trim> trims;
    std::vector<std::uint32_t> lastPart;  // of OLD, where an event of NEW has partners
};

}  // namespace

std::vector<Trim> findTrims(const PartneredCuts& cuts) {
    return Finder(cuts).find();
}

}  // namespace clipvane::diff
