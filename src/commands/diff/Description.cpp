// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Description.h"

#include <cstddef>
#include <utility>

#include "commands/diff/FreeStretches.h"
#include "commands/diff/Trims.h"
#include "commands/diff/Unpaired.h"

namespace clipvane::diff {
namespace {

Times timesOf(const CutEvent& event) {
    return {event.sourceIn, event.sourceOut, event.recordIn, event.recordOut};
}

Word wordForUnpartnered(const CutEvent& event, const Unpaired& unpaired, Word lacking,
                        Word further) {
    if (!event.hasFrames()) return Word::notCompared;
    return unpaired.lacking > 0 ? lacking : further;
}

/// Few events have unpaired frames; they are asked for in the order of the cut.
class UnpairedInOrder {
  public:
    explicit UnpairedInOrder(std::vector<Unpaired> all) : all(std::move(all)) {}

    Unpaired of(std::uint32_t event) {
        if (next == all.size() || all[next].event != event) return {};
        return all[next++];
    }

  private:
    std::vector<Unpaired> all;
    std::size_t next = 0;
};

class NewDescriber {
  public:
    NewDescriber(const PartneredCuts& cuts, const std::vector<TrackChain>& chains)
        : oldCut(cuts.oldCut),
          newCut(cuts.newCut),
          partners(cuts.partners),
          trims(findTrims(cuts)),
          isMoved(newCut.size()),
          pieceOf(newCut.size()) {
        for (const TrackChain& track : chains) {
            for (const std::uint32_t n : track.moved) isMoved[n] = true;
        }
        for (std::uint32_t o = 0; o < oldCut.size(); ++o) {
            std::uint32_t piece = 0;
            for (const std::uint32_t n : partners.ofOld(o)) {
                ++piece;
                if (partners.first(n).oldEvent == o) pieceOf[n] = piece;
            }
        }
    }

    NewEvent describe(std::uint32_t n, const Unpaired& unpaired) const {
        const CutEvent& event = newCut[n];
        const auto all = partners.ofNew(n);
        NewEvent result;
        result.row = event.row;
        result.track = event.track;
        result.kind = event.kind;
        result.times = timesOf(event);
        result.newFrames = unpaired.lacking;
        result.againFrames = unpaired.further;
        result.elsewhereFrames = event.frames() - unpaired.lacking - unpaired.further;
        for (const Partnership& p : all) result.elsewhereFrames -= p.frames;
        if (all.empty()) {
            result.words.add(wordForUnpartnered(event, unpaired, Word::added, Word::again));
            return result;
        }
        result.partner = all.front().oldEvent;
        describePieces(result, n);
        describeContent(result, n);
        describePlace(result, n);
        describeName(result, n);
        if (result.words.empty()) {
            const bool isWhole = all.front().frames == event.frames();
            result.words.add(isWhole ? Word::same : Word::partly);
        }
        return result;
    }

  private:
    const CutEvent& partnerOf(std::uint32_t n) const { return oldCut[partners.first(n).oldEvent]; }

    void describePieces(NewEvent& result, std::uint32_t n) const {
        result.piece = pieceOf[n];
        result.pieces =
            static_cast<std::uint32_t>(partners.ofOld(partners.first(n).oldEvent).size());
        result.parts = static_cast<std::uint32_t>(partners.ofNew(n).size());
        if (result.pieces > 1) result.words.add(Word::split);
        if (result.parts > 1) result.words.add(Word::joined);
    }

    bool isSlipped(const NewEvent& result, std::uint32_t n) const {
        const CutEvent& event = newCut[n];
        const CutEvent& partner = partnerOf(n);
        return result.pieces == 1 && result.parts == 1 && event.frames() == partner.frames() &&
               event.sourceIn != partner.sourceIn && shiftBetween(partner, event) != 0;
    }

    void describeContent(NewEvent& result, std::uint32_t n) const {
        if (partners.first(n).isRetimed()) {
            result.words.add(Word::retimed);
        } else if (isSlipped(result, n)) {
            result.words.add(Word::slipped);
            result.sourceShift = newCut[n].sourceIn - partnerOf(n).sourceIn;
        } else if (trims[n].head != 0 || trims[n].tail != 0 || trims[n].inside != 0) {
            result.words.add(Word::trimmed);
            result.head = trims[n].head;
            result.tail = trims[n].tail;
            result.inside = trims[n].inside;
        }
    }

    void describePlace(NewEvent& result, std::uint32_t n) const {
        const CutEvent& event = newCut[n];
        const CutEvent& partner = partnerOf(n);
        const bool byInPoint = result.words.has(Word::slipped) || result.words.has(Word::retimed);
        result.shift = byInPoint ? subtractChecked(event.recordIn, partner.recordIn)
                                 : shiftBetween(partner, event);
        if (event.track != partner.track) {
            result.words.add(Word::otherTrack);
        } else if (result.shift != 0) {
            result.words.add(isMoved[n] ? Word::moved : Word::shifted);
        }
    }

    void describeName(NewEvent& result, std::uint32_t n) const {
        const std::uint32_t name = newCut[n].name;
        const std::uint32_t before = partnerOf(n).name;
        if (name != before && name != 0 && before != 0) result.words.add(Word::renamed);
    }

    const Cut& oldCut;
    const Cut& newCut;
    const Partners& partners;
    std::vector<Trim> trims;
    std::vector<bool> isMoved;
    std::vector<std::uint32_t> pieceOf;  // which piece of its partner an event is, from 1
};

}  // namespace

std::vector<NewEvent> describeNew(const PartneredCuts& cuts, const std::vector<Run>& runs,
                                  const std::vector<TrackChain>& chains) {
    UnpairedInOrder unpaired(countUnpaired(cuts.newCut, pairedOfNew(runs), cuts.oldCut));
    const NewDescriber describer(cuts, chains);
    std::vector<NewEvent> all;
    all.reserve(cuts.newCut.size());
    for (std::uint32_t n = 0; n < cuts.newCut.size(); ++n) {
        all.push_back(describer.describe(n, unpaired.of(n)));
    }
    return all;
}

std::vector<OldEvent> describeOld(const PartneredCuts& cuts, const std::vector<Run>& runs) {
    const Cut& cut = cuts.oldCut;
    UnpairedInOrder allUnpaired(countUnpaired(cut, pairedOfOld(runs, cut.size()), cuts.newCut));
    std::vector<OldEvent> all;
    all.reserve(cut.size());
    for (std::uint32_t o = 0; o < cut.size(); ++o) {
        const CutEvent& event = cut[o];
        const Unpaired unpaired = allUnpaired.of(o);
        OldEvent result{event.row,        event.track,     {}, event.kind, timesOf(event),
                        unpaired.lacking, unpaired.further};
        if (cuts.partners.ofOld(o).empty()) {
            result.words.add(wordForUnpartnered(event, unpaired, Word::gone, Word::fewer));
        }
        all.push_back(result);
    }
    return all;
}

}  // namespace clipvane::diff
