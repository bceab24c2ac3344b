// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutWords.h"

#include <algorithm>

#include "judges/CutTrims.h"

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;
using std::string;

class Words {
  public:
    Words(const Layout& layout, const Bonds& bonds, const Chains& chains)
        : layout(layout), olds(layout.olds), news(layout.news), bonds(bonds), chains(chains) {}

    string of(size_t n) const {
        const Event& event = news.events[n];
        const Lack lack = lackOf(news, n, olds);
        if (!bonds.hasPartner(n)) {
            if (isThing(event)) return "not compared";
            return (lack.lacking > 0 ? "new" : "again") + frames(n, lack);
        }
        const Event& partner = olds.events[first(n)];
        string words = pieces(n) + content(n) + place(n);
        if (!event.name.empty() && !partner.name.empty() && event.name != partner.name) {
            words += " renamed";
        }
        if (words.empty()) {
            words = bonds.between(n, first(n)).frames == event.frames() ? " same" : " partly";
        }
        return "of " + text(static_cast<int64_t>(partner.row)) + words + frames(n, lack);
    }

  private:
    size_t first(size_t n) const { return bonds.olds.at(n).front(); }

    string pieces(size_t n) const {
        string words;
        const auto& all = bonds.news.at(first(n));
        if (all.size() > 1) {
            const auto piece = std::ranges::find(all, n) - all.begin() + 1;
            words += " split " + text(piece) + '/' + text(static_cast<int64_t>(all.size()));
        }
        const size_t parts = bonds.olds.at(n).size();
        if (parts > 1) words += " joined " + text(static_cast<int64_t>(parts));
        return words;
    }

    bool isSlipped(size_t n) const {
        const Event& event = news.events[n];
        const Event& partner = olds.events[first(n)];
        return bonds.olds.at(n).size() == 1 && bonds.news.at(first(n)).size() == 1 &&
               event.kind == Kind::plain && partner.kind == Kind::plain &&
               event.frames() == partner.frames() && event.sourceIn != partner.sourceIn &&
               bonds.between(n, first(n)).shift != 0;
    }

    string content(size_t n) const {
        if (bonds.between(n, first(n)).isRetimed) return " retimed";
        if (!isSlipped(n)) return trimOf(layout, bonds, n);
        return " slipped " + text(news.events[n].sourceIn - olds.events[first(n)].sourceIn);
    }

    string place(size_t n) const {
        const Event& event = news.events[n];
        const Event& partner = olds.events[first(n)];
        const Bond& bond = bonds.between(n, first(n));
        const bool byInPoint = bond.isRetimed || isSlipped(n);
        const int64_t shift =
            byInPoint ? event.recordIn - partner.recordIn : bond.shift.value_or(0);
        if (event.track != partner.track) return " track " + text(shift);
        if (shift == 0) return "";
        return (chains.moved.contains(n) ? " moved " : " shifted ") + text(shift);
    }

    string frames(size_t n, const Lack& lack) const {
        int64_t elsewhere = news.events[n].frames() - lack.lacking - lack.further;
        if (bonds.hasPartner(n)) {
            for (const auto& [o, bond] : bonds.partners.at(n)) elsewhere -= bond.frames;
        }
        return " (" + text(lack.lacking) + ' ' + text(lack.further) + ' ' + text(elsewhere) + ')';
    }

    const Layout& layout;
    const Side& olds;
    const Side& news;
    const Bonds& bonds;
    const Chains& chains;
};

}  // namespace

bool isThing(const Event& event) {
    return event.kind == Kind::point || event.kind == Kind::odd;
}

Lack lackOf(const Side& side, size_t event, const Side& other) {
    Lack lack;
    for (const Unit& unit : side.units) {
        if (unit.event != event || unit.mate != nobody) continue;
        const bool isUsed = std::ranges::any_of(other.units, [&](const Unit& u) {
            return u.position == unit.position && u.axis == unit.axis;
        });
        (isUsed ? lack.further : lack.lacking) += unit.frames;
    }
    return lack;
}

std::vector<string> describeNews(const Layout& layout, const Bonds& bonds, const Chains& chains) {
    const Words words(layout, bonds, chains);
    std::vector<string> all;
    for (size_t n = 0; n < layout.news.events.size(); ++n) all.push_back(words.of(n));
    return all;
}

std::vector<string> describeOlds(const Layout& layout, const Bonds& bonds) {
    std::vector<string> all;
    for (size_t o = 0; o < layout.olds.events.size(); ++o) {
        const Lack lack = lackOf(layout.olds, o, layout.news);
        string word;
        if (!bonds.news.contains(o)) {
            word = isThing(layout.olds.events[o]) ? "not compared"
                   : lack.lacking > 0             ? "gone"
                                                  : "fewer";
        }
        all.push_back(word + " (" + text(lack.lacking) + ' ' + text(lack.further) + ')');
    }
    return all;
}

}  // namespace clipvane::test::layout
