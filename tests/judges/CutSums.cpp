// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutSums.h"

#include <algorithm>
#include <optional>
#include <set>
#include <sstream>
#include <tuple>

#include "judges/CutBlack.h"
#include "judges/CutWords.h"

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;
using std::string;

using Stretches = std::vector<std::array<int64_t, 3>>;

struct Count {
    int64_t kept = 0;
    int64_t lacking = 0;
    int64_t further = 0;
};

/// The frames of `side`, by how often each list uses them.
Count countUses(const Side& side, const Side& other) {
    struct Uses {
        int64_t own = 0;
        int64_t others = 0;
        int64_t frames = 0;
    };
    std::map<std::pair<string, int64_t>, Uses> all;
    for (const Unit& u : side.units) {
        Uses& uses = all[{u.axis, u.position}];
        ++uses.own;
        uses.frames = u.frames;
    }
    for (const Unit& u : other.units) ++all[{u.axis, u.position}].others;
    Count count;
    for (const auto& [unit, uses] : all) {
        count.kept += std::min(uses.own, uses.others) * uses.frames;
        const int64_t more = std::max<int64_t>(uses.own - uses.others, 0);
        (uses.others == 0 ? count.lacking : count.further) += more * uses.frames;
    }
    return count;
}

int64_t lengthOf(const Side& side) {
    std::optional<int64_t> first, last;
    for (const Event& e : side.events) {
        if (isThing(e)) continue;
        first = std::min(first.value_or(e.recordIn), e.recordIn);
        last = std::max(last.value_or(e.recordOut), e.recordOut);
    }
    return first ? *last - *first : 0;
}

bool overlaps(const Side& side, const string& track) {
    int64_t frames = 0;
    for (const Event& event : side.events) {
        if (event.track == track) frames += event.frames();
    }
    return frames != static_cast<int64_t>(covered(side, track).size());
}

/// Places in OLD by places in NEW, of what is paired on the track.
std::map<int64_t, int64_t> playedOn(const string& track, const Layout& layout) {
    std::map<int64_t, int64_t> played;
    for (const Unit& unit : layout.news.units) {
        if (unit.mate == nobody || layout.news.events[unit.event].track != track) continue;
        const Unit& mate = layout.olds.units[unit.mate];
        if (layout.olds.events[mate.event].track != track) continue;
        for (int64_t i = 0; i < unit.frames; ++i) played[*unit.place + i] = *mate.place + i;
    }
    return played;
}

Stretches stretchesOn(const string& track, const Layout& layout) {
    const auto oldCovered = covered(layout.olds, track);
    const auto newCovered = covered(layout.news, track);
    Stretches stretches;
    for (const auto& [place, oldPlace] : playedOn(track, layout)) {
        const int64_t shift = place - oldPlace;
        bool continues = !stretches.empty() && stretches.back()[0] - stretches.back()[2] == shift;
        for (int64_t f = continues ? stretches.back()[1] : place; f < place; ++f) {
            continues = continues && !newCovered.contains(f) && !oldCovered.contains(f - shift);
        }
        if (!continues) stretches.push_back({place, place, oldPlace});
        stretches.back()[1] = place + 1;
    }
    return stretches;
}

}  // namespace

string sumsOf(const Layout& layout) {
    const Count ofNew = countUses(layout.news, layout.olds);
    const Count ofOld = countUses(layout.olds, layout.news);
    std::ostringstream out;
    out << "kept " << ofNew.kept << ' ' << ofOld.kept << " new " << ofNew.lacking << " again "
        << ofNew.further << " gone " << ofOld.lacking << " fewer " << ofOld.further << " longer "
        << lengthOf(layout.news) - lengthOf(layout.olds);
    return out.str();
}

std::map<string, Stretches> stretchesOf(const Layout& layout) {
    std::map<string, Stretches> all;
    for (const Event& event : layout.news.events) {
        if (all.contains(event.track) || overlaps(layout.news, event.track)) continue;
        all[event.track] = stretchesOn(event.track, layout);
    }
    return all;
}

}  // namespace clipvane::test::layout
