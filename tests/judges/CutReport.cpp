// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutReport.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "judges/CutBlack.h"
#include "judges/CutWords.h"

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;
using std::string;

bool isLost(const Layout& layout, const Bonds& bonds, size_t o) {
    return !bonds.news.contains(o) && !isThing(layout.olds.events[o]);
}

/// How many events of its track's chain an event of OLD follows there.
size_t slotOf(const Layout& layout, const std::vector<Stay>& chain, size_t o) {
    const auto before = std::ranges::count_if(chain, [&](const Stay& s) {
        return std::pair(s.oldFrom, s.o) < std::pair(layout.olds.events[o].recordIn, o);
    });
    return static_cast<size_t>(before);
}

const std::vector<Stay>& chainOf(const Chains& chains, const string& track) {
    static const std::vector<Stay> none;
    const auto found = chains.byTrack.find(track);
    return found == chains.byTrack.end() ? none : found->second;
}

string rowText(const Event& event) {
    return text(static_cast<int64_t>(event.row) + 1);
}

class Lines {
  public:
    Lines(const Layout& layout, const Bonds& bonds, const Chains& chains)
        : layout(layout),
          bonds(bonds),
          chains(chains),
          words(describeNews(layout, bonds, chains)),
          black(blackChanges(layout, bonds, chains)) {}

    std::vector<string> make() && {
        for (const string& track : tracksInOrder()) addTrack(track);
        return std::move(lines);
    }

  private:
    /// Neighbours of which nothing but the same shift is to be said.
    struct Alike {
        size_t first = 0;
        size_t last = 0;
        int64_t count = 0;
        string said;  // " shifted 12"
    };

    /// As they appear in NEW's rows, then in OLD's.
    std::vector<string> tracksInOrder() const {
        std::vector<string> tracks;
        for (const Side* side : {&layout.news, &layout.olds}) {
            std::vector<const Event*> rows;
            for (const Event& event : side->events) rows.push_back(&event);
            std::ranges::sort(rows, {}, &Event::row);
            for (const Event* event : rows) {
                if (std::ranges::count(tracks, event->track) == 0) tracks.push_back(event->track);
            }
        }
        return tracks;
    }

    void addTrack(const string& track) {
        addLostBehind(track, std::nullopt);
        Alike open;
        const auto close = [&] {
            if (open.count > 0) addAlike(track, open);
            open.count = 0;
        };
        for (size_t n = 0; n < layout.news.events.size(); ++n) {
            if (layout.news.events[n].track != track) continue;
            const string alone = shiftAlone(n);
            const bool continues = open.count > 0 && open.said == alone && !black.contains(n);
            if (!continues) close();
            for (auto [change, end] = black.equal_range(n); change != end; ++change) {
                const int64_t longer = change->second;
                lines.push_back(track + "|||black " + text(std::abs(longer)) +
                                (longer < 0 ? " shorter" : " longer"));
            }
            if (continues) {
                open.last = n;
                ++open.count;
            } else if (!alone.empty()) {
                open = {n, n, 1, alone};
            } else if (hasLine(n)) {
                addEvent(track, n);
            }
            if (hasLostBehind(track, n)) close();
            addLostBehind(track, n);
        }
        close();
    }

    bool hasLine(size_t n) const {
        return words[n] != "not compared" && words[n].find(" same (") == string::npos;
    }

    /// " shifted 12" or " moved 12" if that is all that is said of it.
    string shiftAlone(size_t n) const {
        if (!bonds.hasPartner(n)) return "";
        const string& all = words[n];
        const string rest = all.substr(all.find(' ', 3));  // behind "of 3"
        const size_t end = rest.find(" (0 0 0)");
        if (end == string::npos) return "";
        const string said = rest.substr(0, end);
        const bool isShift = said.starts_with(" shifted ") || said.starts_with(" moved ");
        return isShift && std::ranges::count(said, ' ') == 2 ? said : "";
    }

    std::vector<size_t> lostBehind(const string& track, std::optional<size_t> n) const {
        const auto& chain = chainOf(chains, track);
        std::vector<size_t> lost;
        for (size_t o = 0; o < layout.olds.events.size(); ++o) {
            if (layout.olds.events[o].track != track || !isLost(layout, bonds, o)) continue;
            const size_t slot = slotOf(layout, chain, o);
            const bool isHere = n ? slot > 0 && chain[slot - 1].n == *n : slot == 0;
            if (isHere) lost.push_back(o);
        }
        return lost;
    }

    bool hasLostBehind(const string& track, size_t n) const {
        return !lostBehind(track, n).empty();
    }

    void addLostBehind(const string& track, std::optional<size_t> n) {
        for (const size_t o : lostBehind(track, n)) {
            lines.push_back(track + '|' + rowText(layout.olds.events[o]) + "||");
        }
    }

    string partnersRow(size_t n) const {
        if (!bonds.hasPartner(n)) return "";
        return rowText(layout.olds.events[bonds.olds.at(n).front()]);
    }

    void addEvent(const string& track, size_t n) {
        lines.push_back(track + '|' + partnersRow(n) + '|' + rowText(layout.news.events[n]) + '|');
    }

    void addAlike(const string& track, const Alike& alike) {
        if (alike.count == 1) {
            addEvent(track, alike.first);
            return;
        }
        const size_t number = alike.said.rfind(' ') + 1;
        const int64_t shift = std::stoll(alike.said.substr(number));
        lines.push_back(track + '|' + partnersRow(alike.first) + '-' + partnersRow(alike.last) +
                        '|' + rowText(layout.news.events[alike.first]) + '-' +
                        rowText(layout.news.events[alike.last]) + '|' + text(alike.count) +
                        " events" + alike.said.substr(0, number) + text(std::abs(shift)) +
                        (shift < 0 ? " earlier" : " later"));
    }

    const Layout& layout;
    const Bonds& bonds;
    const Chains& chains;
    std::vector<string> words;
    std::multimap<size_t, int64_t> black;
    std::vector<string> lines;
};

}  // namespace

std::map<size_t, size_t> replacements(const Layout& layout, const Bonds& bonds,
                                      const Chains& chains) {
    using Slot = std::pair<string, size_t>;  // track, events of the chain before it
    std::map<Slot, std::vector<size_t>> lost;
    std::map<Slot, std::vector<size_t>> others;
    for (size_t o = 0; o < layout.olds.events.size(); ++o) {
        if (!isLost(layout, bonds, o)) continue;
        const string& track = layout.olds.events[o].track;
        lost[{track, slotOf(layout, chainOf(chains, track), o)}].push_back(o);
    }
    for (size_t n = 0; n < layout.news.events.size(); ++n) {
        const Event& event = layout.news.events[n];
        if (chains.members.contains(n)) continue;
        if (isThing(event) && !bonds.hasPartner(n)) continue;
        const auto before = std::ranges::count_if(chainOf(chains, event.track),
                                                  [&](const Stay& s) { return s.n < n; });
        others[{event.track, static_cast<size_t>(before)}].push_back(n);
    }
    std::map<size_t, size_t> replaced;
    for (const auto& [slot, here] : others) {
        if (here.size() != 1 || lost[slot].size() != 1) continue;
        const size_t n = here.front();
        const bool isNew = !bonds.hasPartner(n) && lackOf(layout.news, n, layout.olds).lacking > 0;
        if (isNew) replaced[n] = lost[slot].front();
    }
    return replaced;
}

std::vector<string> linesOf(const Layout& layout, const Bonds& bonds, const Chains& chains) {
    return Lines(layout, bonds, chains).make();
}

}  // namespace clipvane::test::layout
