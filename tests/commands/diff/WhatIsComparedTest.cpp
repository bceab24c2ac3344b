// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// What takes part in a comparison, and when two texts are one.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/diff/Cuts.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

using diff::Word;
using diff::Words;

TimelineEvent eventOf(std::string format, std::string reel, std::string rawText) {
    TimelineEvent event;
    event.eventNumber = "001";
    event.clipName = "Clip 001";
    event.reelID = std::move(reel);
    event.track = "V";
    event.sourceIn = event.recordIn = "00:00:00:00";
    event.sourceOut = event.recordOut = "00:00:02:00";
    event.format = std::move(format);
    event.rawText = std::move(rawText);
    return event;
}

struct BlackCase {
    std::string_view name;
    std::string format;
    std::string reel;
    std::string rawText;
    bool takesPart = false;
};

class BlackEvents : public testing::TestWithParam<BlackCase> {};

TEST_P(BlackEvents, TakeNoPart) {
    const auto& [name, format, reel, rawText, takesPart] = GetParam();
    const diff::Events none;
    const diff::Events one = std::vector{eventOf(format, reel, rawText)};
    const auto diff = diff::compareCuts({none, at25}, {one, at25});
    EXPECT_EQ(diff.newEvents.size(), takesPart ? 1 : 0);
    EXPECT_EQ(diff.sums.added, takesPart ? 50 : 0);
    EXPECT_EQ(diff.sums.longer, takesPart ? 50 : 0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, BlackEvents,
                         testing::Values(BlackCase{"BL", "EDL", "BL", "001 BL V C"},
                                         BlackCase{"BLK", "EDL", "BLK", "001 BLK V C"},
                                         BlackCase{"BLACK", "EDL", "BLACK", "", true},
                                         BlackCase{"LowerCase", "EDL", "bl", "", true},
                                         BlackCase{"NamedGapInAnEDL", "EDL", "A", "gap", true},
                                         BlackCase{"Gap", "XML", "", "gap"},
                                         BlackCase{"GapWithAReference", "XML", "r1", "gap"},
                                         BlackCase{"ReelInAnXML", "XML", "BL", "clip", true}),
                         RowName());

struct SourceCase {
    std::string_view name;
    std::string reel;
    bool isAlone = false;  ///< no other reel in the list
    std::string firstName;
    std::string secondName;
    bool areOne = false;  ///< a second name is no second source
};

class Sources : public testing::TestWithParam<SourceCase> {};

TEST_P(Sources, OfReelsThatSayNothing_AreToldApartByName) {
    const auto& [name, reel, isAlone, firstName, secondName, areOne] = GetParam();
    std::vector<Row> olds{cut(reel, 0, 50, 0, "V", firstName)};
    std::vector<Row> news{cut(reel, 0, 50, 0, "V", secondName)};
    for (auto* rows : {&olds, &news}) {
        rows->push_back(cut(reel, 100, 150, 50, "V", "third"));
        if (!isAlone) rows->push_back(cut("other", 0, 50, 100));
    }
    const auto diff = compare(olds, news);
    EXPECT_EQ(diff.sums.added, areOne ? 0 : 50);
    EXPECT_EQ(diff.sums.of(Word::renamed), areOne ? 1 : 0);
}

TEST(OneSource, TheOnlyReelOfOneName) {
    const auto diff =
        compare({cut("A", 0, 50, 0, "V", "first")}, {cut("A", 0, 50, 0, "V", "second")});
    EXPECT_EQ(diff.newEvents[0].words, Words{Word::renamed});
}

INSTANTIATE_TEST_SUITE_P(Reels, Sources,
                         testing::Values(SourceCase{"Usual", "A", false, "first", "second", true},
                                         SourceCase{"AX", "AX", false, "first", "second"},
                                         SourceCase{"Empty", "", false, "first", "second"},
                                         SourceCase{"TheOnlyOne", "A", true, "first", "second"}),
                         RowName());

diff::By toldBy(const std::vector<TimelineEvent>& olds, const std::vector<TimelineEvent>& news) {
    const diff::Events oldEvents = olds;
    const diff::Events newEvents = news;
    return diff::compareCuts({oldEvents, at25}, {newEvents, at25}).by;
}

TEST(SourcesOfOneFormatOrTwo, AreToldByReel_OnlyIfAllEventsComeFromEDLs) {
    const auto edl = eventOf("EDL", "A", "");
    const auto xml = eventOf("XML", "A", "clip");
    EXPECT_EQ(toldBy({edl}, {edl}), diff::By::reel);
    EXPECT_EQ(toldBy({edl}, {xml}), diff::By::name);
    EXPECT_EQ(toldBy({xml}, {edl}), diff::By::name);
    EXPECT_EQ(toldBy({edl}, {xml, edl}), diff::By::name);
    EXPECT_EQ(toldBy({edl, xml}, {edl}), diff::By::name);
}

TEST(ListsWithoutEvents, HaveOneTrackThatIsNotCompared) {
    const diff::Events none;
    const auto diff = diff::compareCuts({none, at25}, {none, at25});
    EXPECT_FALSE(diff.comparesTracks);
    EXPECT_THAT(diff.tracks, testing::ElementsAre(""));
}

constexpr auto composed = "Pr\u00EAt";
constexpr auto decomposed = "Pre\u0302t";

TEST(Texts, CanonicallyEquivalentReels_AreOneSource) {
    const auto diff = compare({cut(composed, 0, 50, 0), cut("B", 0, 50, 50)},
                              {cut(decomposed, 0, 50, 0), cut("B", 0, 50, 50)});
    EXPECT_TRUE(diff.sums.areSame());
}

TEST(Texts, CanonicallyEquivalentNames_AreNotRenamed) {
    EXPECT_TRUE(compare({cut("A", 0, 50, 0, "V", composed)}, {cut("A", 0, 50, 0, "V", decomposed)})
                    .sums.areSame());
    EXPECT_EQ(compare({cut("A", 0, 50, 0, "V", composed)}, {cut("A", 0, 50, 0, "V", "Pret")})
                  .newEvents[0]
                  .words,
              Words{Word::renamed});
}

TEST(Texts, CanonicallyEquivalentTracks_AreOne) {
    const std::vector<Row> olds{cut("A", 0, 50, 0, composed), cut("B", 0, 50, 50)};
    const std::vector<Row> news{cut("A", 0, 50, 0, decomposed), cut("B", 0, 50, 50)};
    const auto diff = compare(olds, news);
    EXPECT_TRUE(diff.sums.areSame());
    EXPECT_THAT(diff.tracks, testing::ElementsAre(decomposed, "V"));

    const auto oldEvents = eventsOf(olds);
    const auto newEvents = eventsOf(news);
    const auto chosen =
        diff::compareCuts({oldEvents, at25}, {newEvents, at25}, std::nullopt, {composed});
    EXPECT_EQ(chosen.sums.newEvents, 1);
    EXPECT_EQ(chosen.sums.kept, 50);
}

TEST(Texts, CanonicallyEquivalentTimecodesThatAreNone_AreEqual) {
    auto oldEvent = eventOf("EDL", "A", "");
    auto newEvent = eventOf("EDL", "A", "");
    oldEvent.sourceIn = composed;
    newEvent.sourceIn = decomposed;
    const diff::Events olds = std::vector{oldEvent};
    const diff::Events news = std::vector{newEvent};
    EXPECT_TRUE(diff::compareCuts({olds, at25}, {news, at25}).sums.areSame());
    newEvent.sourceIn = "Pret";
    const diff::Events others = std::vector{newEvent};
    EXPECT_EQ(diff::compareCuts({olds, at25}, {others, at25}).sums.of(Word::notCompared), 2);
}

TEST(Texts, ATimecodeThatIsNone_EqualsNoTimecode) {
    auto none = eventOf("EDL", "A", "");
    none.sourceIn = "?";
    for (int frames = 0; frames < 10; ++frames) {
        // Odd, for it ends before it begins.
        auto backwards = eventOf("EDL", "A", "");
        backwards.sourceIn = "0" + std::to_string(frames) + ":00:00:00";
        none.recordIn = backwards.recordIn = "00:00:03:00";
        const diff::Events news = std::vector{backwards};
        const diff::Events olds = std::vector{none};
        EXPECT_EQ(diff::compareCuts({olds, at25}, {news, at25}).sums.of(Word::notCompared), 2);
    }
}

TEST(Texts, TextsThatOnlyLookAlike_AreNotOne) {
    EXPECT_EQ(compare({cut("\uFF21", 0, 50, 0)}, {cut("A", 0, 50, 0)}).sums.added, 50)
        << "a compatibility character";
}

}  // namespace
}  // namespace clipvane::test
