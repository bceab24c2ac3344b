// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/diff/CutDiff.h>

#include <algorithm>

#include "commands/diff/Black.h"
#include "commands/diff/CutEvent.h"
#include "commands/diff/CutPair.h"
#include "commands/diff/Description.h"
#include "commands/diff/Pairing.h"
#include "commands/diff/Partners.h"
#include "commands/diff/ReportOrder.h"
#include "commands/diff/TrackChains.h"

namespace clipvane::diff {
namespace {

/// From the first record in to the last record out of the chosen tracks.
std::int64_t lengthOf(const Cut& cut, const std::vector<bool>& isChosen) {
    std::optional<std::int64_t> first;
    std::int64_t last = 0;
    for (const CutEvent& event : cut) {
        if (!event.hasFrames() || !isChosen[event.track]) continue;
        last = first ? std::max(last, event.recordOut) : event.recordOut;
        if (!first) first = event.recordIn;  // the cut is in record order
    }
    return first ? subtractChecked(last, *first) : 0;
}

class Adder {
  public:
    Adder(const CutPair& pair, const std::vector<bool>& isChosen)
        : pair(pair), isChosen(isChosen) {}

    Sums add(const std::vector<NewEvent>& newEvents, const std::vector<OldEvent>& oldEvents) && {
        for (std::size_t n = 0; n < newEvents.size(); ++n) {
            const NewEvent& event = newEvents[n];
            if (!isChosen[event.track]) continue;
            ++sums.newEvents;
            count(event.words);
            const std::int64_t frames = pair.newCut[n].frames();
            add(sums.kept, frames - event.newFrames - event.againFrames);
            add(sums.added, event.newFrames);
            add(sums.again, event.againFrames);
        }
        for (std::size_t o = 0; o < oldEvents.size(); ++o) {
            const OldEvent& event = oldEvents[o];
            if (!isChosen[event.track]) continue;
            ++sums.oldEvents;
            count(event.words);
            const std::int64_t frames = pair.oldCut[o].frames();
            add(sums.keptInOld, frames - event.goneFrames - event.fewerFrames);
            add(sums.gone, event.goneFrames);
            add(sums.fewer, event.fewerFrames);
        }
        sums.longer =
            subtractChecked(lengthOf(pair.newCut, isChosen), lengthOf(pair.oldCut, isChosen));
        return sums;
    }

  private:
    static void add(std::int64_t& sum, std::int64_t frames) { sum = addChecked(sum, frames); }

    void count(Words words) {
        words.forEach([&](Word word) { ++sums.events[static_cast<std::size_t>(word)]; });
    }

    const CutPair& pair;
    const std::vector<bool>& isChosen;
    Sums sums;
};

std::vector<PairedStretch> pairedStretches(const CutPair& pair, const std::vector<Run>& runs) {
    std::vector<PairedStretch> stretches;
    stretches.reserve(runs.size());
    for (const Run& run : runs) {
        const CutEvent& n = pair.newCut[run.newEvent];
        const CutEvent& o = pair.oldCut[run.oldEvent];
        if (!n.hasFrames()) continue;
        const std::int64_t newFrom = addChecked(n.offset(), run.from);
        stretches.push_back({run.newEvent, run.oldEvent, newFrom,
                             addChecked(newFrom, n.framesOf(run.to - run.from)),
                             addChecked(o.offset(), run.from)});
    }
    return stretches;
}

std::vector<bool> chosen(const CutPair& pair, const std::vector<std::string>& onlyTracks) {
    std::vector<bool> isChosen(pair.tracks.size(), onlyTracks.empty());
    for (const std::string& text : onlyTracks) {
        if (const auto track = findTrack(pair.tracks, text)) isChosen[*track] = true;
    }
    return isChosen;
}

}  // namespace

bool Sums::areSame() const {
    return of(Word::same) == newEvents && of(Word::gone) + of(Word::fewer) == 0 &&
           of(Word::notCompared) == 0;
}

CutDiff compareCuts(const CutList& oldList, const CutList& newList, std::optional<By> by,
                    const std::vector<std::string>& onlyTracks) {
    const CutPair pair = makeComparable(oldList, newList, by);
    const std::vector<Run> runs = pairFrames(pair.oldCut, pair.newCut);
    const Partners partners = findPartners(pair.oldCut, pair.newCut, runs);
    const PartneredCuts cuts{pair.oldCut, pair.newCut, partners};
    const auto chains = findTrackChains(cuts, pair.tracks.size());
    const auto black = findBlackChanges(cuts, chains);
    const std::vector<bool> isChosen = chosen(pair, onlyTracks);

    CutDiff diff;
    diff.by = pair.by;
    diff.comparesTracks = pair.comparesTracks;
    diff.tracks = pair.tracks;
    diff.newEvents = describeNew(cuts, runs, chains);
    diff.oldEvents = describeOld(cuts, runs);
    findReplacements(pair.oldCut, chains, diff.oldEvents, diff.newEvents);
    diff.paired = pairedStretches(pair, runs);
    diff.report = makeReport(pair.oldCut, chains, black, diff.newEvents, diff.oldEvents);
    if (!onlyTracks.empty()) {
        std::erase_if(diff.report, [&](const ReportLine& line) { return !isChosen[line.track]; });
    }
    diff.sums = Adder(pair, isChosen).add(diff.newEvents, diff.oldEvents);
    return diff;
}

}  // namespace clipvane::diff
