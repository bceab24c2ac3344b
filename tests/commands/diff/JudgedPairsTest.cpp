// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Random pairs of small cuts, compared by the program and judged frame by frame.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include <clipvane/Timecode.h>
#include "commands/diff/ChangeList.h"
#include "commands/diff/Cuts.h"
#include "support/Random.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

using Events = std::vector<JudgedEvent>;

void setTime(JudgedEvent& event, std::size_t field, std::int64_t frames) {
    event.times[field] = frames;
    event.texts[field] = timecode(frames, at25.fps, false);
}

/// Small cuts that meet often: few reels, few source frames, few tracks.
class PairMaker {
  public:
    explicit PairMaker(Random& random) : random(random) {}

    Events cut() {
        Events events;
        const std::size_t count = random.below(8);
        const bool overlaps = random.oneIn(4);
        std::int64_t place = number(5);
        for (std::size_t i = 0; i < count; ++i) {
            if (overlaps && random.oneIn(3)) place = number(30);
            events.push_back(event(place));
            if (random.oneIn(12)) events.push_back(events.back());
            place = events.back().times[3].value_or(place) + (random.oneIn(5) ? number(6) : 0);
        }
        if (random.oneIn(10)) std::ranges::reverse(events);
        return numbered(events);
    }

    /// Another version of a cut.
    Events edited(const Events& from) {
        Events events = from;
        for (std::size_t edits = random.below(4); edits > 0; --edits) edit(events);
        return numbered(events);
    }

  private:
    std::int64_t number(std::size_t below) {
        return static_cast<std::int64_t>(random.below(below));
    }

    JudgedEvent event(std::int64_t place) {
        JudgedEvent event;
        event.reel = random.pick(std::array{"A", "A", "A", "B", "B", "\u00E9", "AX", "BL"});
        event.track = random.pick(std::array{"V", "V", "V", "V", "V2", "A"});
        if (random.oneIn(2)) event.name = random.pick(std::array{"x", "\u00E9"});
        const std::int64_t in = number(16);
        const std::int64_t length = 1 + number(12);
        setTime(event, 0, in);
        setTime(event, 1, in + length);
        setTime(event, 2, place);
        setTime(event, 3, place + length);
        if (random.oneIn(8)) setTime(event, 1, in + number(20) - 4);  // another speed
        if (random.oneIn(12)) setTime(event, 3, place);               // a point
        if (random.oneIn(16)) makeOdd(event);
        return event;
    }

    void makeOdd(JudgedEvent& event) {
        const std::size_t field = random.below(4);
        if (random.oneIn(2)) {
            setTime(event, 3, *event.times[2] - 1 - number(3));
        } else {
            event.times[field].reset();
            event.texts[field] = random.pick(std::array{"", "?"});
        }
    }

    void shiftFrom(Events& events, std::size_t first, std::int64_t shift) {
        for (std::size_t i = first; i < events.size(); ++i) {
            for (const std::size_t field : {std::size_t{2}, std::size_t{3}}) {
                if (events[i].times[field])
                    setTime(events[i], field, *events[i].times[field] + shift);
            }
        }
    }

    void edit(Events& events) {
        if (events.empty()) {
            events.push_back(event(number(30)));
            return;
        }
        const std::size_t at = random.below(events.size());
        JudgedEvent& chosen = events[at];
        const bool isTimed =
            std::ranges::all_of(chosen.times, [](auto t) { return t.has_value(); });
        switch (random.below(9)) {
            case 0:
                events.erase(events.begin() + static_cast<std::ptrdiff_t>(at));
                break;
            case 1: {
                const JudgedEvent added = event(chosen.times[2].value_or(3));
                const std::int64_t length = added.times[3].value_or(0) - added.times[2].value_or(0);
                shiftFrom(events, at, length);
                events.insert(events.begin() + static_cast<std::ptrdiff_t>(at), added);
                break;
            }
            case 2:
                if (isTimed) {  // at the head
                    const std::int64_t n = number(7) - 3;
                    setTime(chosen, 0, *chosen.times[0] + n);
                    setTime(chosen, 2, *chosen.times[2] + n);
                }
                break;
            case 3:
                if (isTimed) {  // at the tail, rippled
                    const std::int64_t n = number(7) - 3;
                    setTime(chosen, 1, *chosen.times[1] + n);
                    setTime(chosen, 3, *chosen.times[3] + n);
                    shiftFrom(events, at + 1, n);
                }
                break;
            case 4:
                if (isTimed) {
                    const std::int64_t n = number(7) - 3;
                    setTime(chosen, 0, *chosen.times[0] + n);
                    setTime(chosen, 1, *chosen.times[1] + n);
                }
                break;
            case 5:
                chosen.track = random.pick(std::array{"V", "V2", "A"});
                break;
            case 6:
                chosen.name = random.pick(std::array{"", "x", "\u00E9", "z"});
                break;
            case 7: {
                const JudgedEvent equal = chosen;
                events.push_back(equal);
                break;
            }
            default:
                std::swap(chosen, events[random.below(events.size())]);
                lineUp(events);
        }
    }

    void lineUp(Events& events) {
        std::int64_t place = number(5);
        for (JudgedEvent& event : events) {
            if (!event.times[2] || !event.times[3]) continue;
            const std::int64_t length = *event.times[3] - *event.times[2];
            setTime(event, 2, place);
            setTime(event, 3, place + length);
            place += std::max<std::int64_t>(length, 0);
        }
    }

    static Events numbered(Events events) {
        for (std::size_t i = 0; i < events.size(); ++i) {
            const bool standsIn = events[i].name.empty() || events[i].name.starts_with("Clip ");
            events[i].number = std::to_string(100 + i);
            if (standsIn) events[i].name = "Clip " + events[i].number;
        }
        return events;
    }

    Random& random;
};

std::string shown(const Events& events) {
    std::ostringstream out;
    for (const auto& e : events) {
        out << e.reel << ' ' << e.track << ' ' << e.name;
        for (std::size_t i = 0; i < 4; ++i) {
            out << ' ' << (e.times[i] ? std::to_string(*e.times[i]) : '"' + e.texts[i] + '"');
        }
        out << '\n';
    }
    return out.str();
}

void expectJudged(const diff::Compared& compared, const CutVerdict& expected) {
    const CutVerdict found = verdictOf(compared);
    ASSERT_EQ(found.newRows, expected.newRows);
    ASSERT_EQ(found.oldRows, expected.oldRows);
    ASSERT_EQ(found.sums, expected.sums);
    ASSERT_EQ(found.lines, expected.lines);
    const diff::CutDiff& diff = compared.diff;
    for (const auto& [track, stretches] : expected.stretches) {
        const auto number = std::ranges::find(diff.tracks, track) - diff.tracks.begin();
        std::vector<std::array<std::int64_t, 3>> own;
        for (const auto& s : diff::changeStretches(diff, static_cast<std::uint32_t>(number))) {
            own.push_back({s.from, s.to, s.oldFrom});
        }
        ASSERT_EQ(own, stretches) << track;
    }
}

void expectTheSame(const diff::CutDiff& itself) {
    ASSERT_TRUE(itself.sums.areSame());
    ASSERT_TRUE(itself.report.empty());
}

/// What mirrors whatever the readings: frames are kept or not, whichever list is called old.
void expectMirrored(const diff::Sums& forth, const diff::Sums& back) {
    ASSERT_EQ(forth.kept, back.keptInOld);
    ASSERT_EQ(forth.added, back.gone);
    ASSERT_EQ(forth.again, back.fewer);
    ASSERT_EQ(forth.gone, back.added);
    ASSERT_EQ(forth.fewer, back.again);
    ASSERT_EQ(forth.longer, -back.longer);
}

TEST(JudgedPairs, RandomPairs_AreComparedAsTheJudgeDoes_MirroredAndWithThemselves) {
    Random random;
    PairMaker maker(random);
    for (std::size_t i = 0; i < generatedCases(12'000); ++i) {
        const Events oldList = maker.cut();
        const Events newList = random.oneIn(4) ? maker.cut() : maker.edited(oldList);
        const std::size_t by = random.below(6);
        const auto chosen = by == 0   ? diff::By::name
                            : by == 1 ? diff::By::reelAndName
                                      : diff::By::reel;
        const auto judged = by == 0   ? JudgedBy::name
                            : by == 1 ? JudgedBy::reelAndName
                                      : JudgedBy::reel;
        SCOPED_TRACE("OLD\n" + shown(oldList) + "NEW\n" + shown(newList));
        const auto oldEvents = eventsOf(oldList);
        const auto newEvents = eventsOf(newList);
        const diff::CutList olds{oldEvents, at25};
        const diff::CutList news{newEvents, at25};
        const auto diff = diff::compareCuts(olds, news, chosen);
        expectJudged({diff, olds, news}, judgeCuts(oldList, newList, judged));
        expectMirrored(diff.sums, diff::compareCuts(news, olds, chosen).sums);
        expectTheSame(diff::compareCuts(olds, olds, chosen));
        if (HasFatalFailure()) return;
    }
}

}  // namespace
}  // namespace clipvane::test
