// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutLayout.h"

#include <set>
#include <tuple>

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;
using std::string;

class Layouter {
  public:
    Layouter(const std::vector<JudgedEvent>& oldList, const std::vector<JudgedEvent>& newList,
             JudgedBy by)
        : by(by) {
        lookForSilentReels(oldList);
        lookForSilentReels(newList);
        std::set<string> tracks;
        for (const auto& e : oldList) {
            if (!isBlack(e)) tracks.insert(e.track);
        }
        const bool isNewEmpty = std::ranges::all_of(newList, isBlack);
        comparesTracks =
            tracks.empty() != isNewEmpty || std::ranges::any_of(newList, [&](const auto& e) {
                return !isBlack(e) && tracks.contains(e.track);
            });
        layOut(oldList, olds);
        layOut(newList, news);
    }

    Layout result() && { return {std::move(olds), std::move(news)}; }

  private:
    static bool isBlack(const JudgedEvent& e) { return e.reel == "BL" || e.reel == "BLK"; }
    static string nameOf(const JudgedEvent& e) {
        return e.name == "Clip " + e.number ? string() : e.name;
    }

    void lookForSilentReels(const std::vector<JudgedEvent>& list) {
        std::set<string> reels;
        std::set<string> names;
        for (const auto& e : list) {
            if (isBlack(e)) continue;
            reels.insert(e.reel);
            if (!nameOf(e).empty()) names.insert(nameOf(e));
        }
        if (reels.size() == 1 && names.size() > 1) silent.insert(*reels.begin());
    }

    string sourceOf(const JudgedEvent& e) const {
        const string name = nameOf(e);
        if (by == JudgedBy::reelAndName) return join({"both", e.reel, name});
        if (by == JudgedBy::name) {
            return name.empty() ? join({"reel", e.reel}) : join({"name", name});
        }
        const bool saysNothing = e.reel.empty() || e.reel == "AX" || silent.contains(e.reel);
        return saysNothing ? join({"both", e.reel, name}) : join({"reel", e.reel});
    }

    void layOut(const std::vector<JudgedEvent>& list, Side& side) const {
        int64_t lastPlace = 0;
        for (size_t row = 0; row < list.size(); ++row) {
            const JudgedEvent& from = list[row];
            if (isBlack(from)) continue;
            Event e;
            e.row = row;
            e.source = sourceOf(from);
            e.name = by == JudgedBy::reel ? nameOf(from) : string();
            e.track = comparesTracks ? from.track : string();
            e.texts = join({from.texts.begin(), from.texts.end()});
            const auto& t = from.times;
            if (t[0] && t[1] && t[2] && t[3] && *t[3] >= *t[2]) {
                std::tie(e.sourceIn, e.sourceOut, e.recordIn, e.recordOut) =
                    std::tuple(*t[0], *t[1], *t[2], *t[3]);
                const int64_t length = e.recordOut - e.recordIn;
                e.kind = length == 0                          ? Kind::point
                         : length == e.sourceOut - e.sourceIn ? Kind::plain
                                                              : Kind::whole;
                lastPlace = e.recordIn;
            }
            e.order = {lastPlace, row};
            side.events.push_back(e);
        }
        std::ranges::sort(side.events, {}, &Event::order);
        for (size_t i = 0; i < side.events.size(); ++i) addUnits(side, i);
    }

    static void addUnits(Side& side, size_t i) {
        const Event& e = side.events[i];
        const auto range = [&] { return join({e.source, text(e.sourceIn), text(e.sourceOut)}); };
        switch (e.kind) {
            case Kind::plain:
                for (int64_t f = e.sourceIn; f < e.sourceOut; ++f) {
                    const int64_t place = e.recordIn + f - e.sourceIn;
                    side.units.push_back({i, "frame " + e.source, f, place, 1, nobody});
                }
                break;
            case Kind::whole:
                side.units.push_back(
                    {i, "whole " + range() + text(e.frames()), 0, e.recordIn, e.frames(), nobody});
                break;
            case Kind::point:
                side.units.push_back({i, "point " + range(), 0, e.recordIn, 0, nobody});
                break;
            case Kind::odd:
                side.units.push_back(
                    {i, "odd " + join({e.source, e.texts}), 0, std::nullopt, 0, nobody});
                break;
        }
    }

    JudgedBy by;
    bool comparesTracks = true;
    std::set<string> silent;
    Side olds;
    Side news;
};

}  // namespace

std::string join(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts) text += part + '\x1f';
    return text;
}

std::string text(std::int64_t number) {
    return std::to_string(number);
}

Layout layOut(const std::vector<JudgedEvent>& oldList, const std::vector<JudgedEvent>& newList,
              JudgedBy by) {
    return Layouter(oldList, newList, by).result();
}

}  // namespace clipvane::test::layout
