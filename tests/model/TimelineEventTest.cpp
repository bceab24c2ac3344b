// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/TimelineEvent.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include <clipvane/TimelineDocument.h>
#include <clipvane/TimelineParseResult.h>
#include "model/FullEvent.h"
#include "support/Records.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

struct TextField {
    const char* name;
    std::string TimelineEvent::*field;
};

const std::vector<TextField> textFields{
    {"eventNumber", &TimelineEvent::eventNumber},
    {"clipName", &TimelineEvent::clipName},
    {"reelID", &TimelineEvent::reelID},
    {"sourceIn", &TimelineEvent::sourceIn},
    {"sourceOut", &TimelineEvent::sourceOut},
    {"recordIn", &TimelineEvent::recordIn},
    {"recordOut", &TimelineEvent::recordOut},
    {"format", &TimelineEvent::format},
    {"track", &TimelineEvent::track},
    {"comments", &TimelineEvent::comments},
    {"rawText", &TimelineEvent::rawText},
};

/// Stands for a value of any type.
struct Anything {
    template <class T>
    operator T() const;
};

template <class... Values>
constexpr bool hasFieldsFor = requires {
    TimelineEvent{Values()...};
};

/// The number of a record's members, however they are called.
template <class... Values>
constexpr std::size_t fieldCount() {
    if constexpr (hasFieldsFor<Values..., Anything>) {
        return fieldCount<Values..., Anything>();
    } else {
        return sizeof...(Values);
    }
}

TEST(TimelineEventFields, TheList_NamesEveryFieldInItsOrder) {
    TimelineEvent event;
    std::vector<const void*> places;
    std::vector<std::string> names;
    forEachField(
        [&](const char* name, auto& field) {
            places.push_back(&field);
            names.emplace_back(name);
        },
        event);
    EXPECT_EQ(names.size(), fieldCount());
    EXPECT_EQ(std::ranges::adjacent_find(places, std::ranges::greater_equal()), places.end())
        << "a field stands twice, or not in its place";
    for (const auto& [name, field] : textFields) {
        const auto found = std::ranges::find(names, name);
        ASSERT_TRUE(found != names.end()) << name;
        EXPECT_EQ(places[static_cast<std::size_t>(found - names.begin())], &(event.*field)) << name;
    }
}

class EventText : public testing::TestWithParam<TextField> {};

TEST_P(EventText, OtherText_MakesEventsUnequal) {
    TimelineEvent other = fullEvent();
    other.*GetParam().field += "x";
    EXPECT_NE(other, fullEvent());
    other.*GetParam().field = "";
    EXPECT_NE(other, fullEvent());
}

TEST_P(EventText, ComposedAndDecomposed_AreEqual) {
    TimelineEvent composed = fullEvent();
    TimelineEvent decomposed = fullEvent();
    composed.*GetParam().field = "caf\u00E9";
    decomposed.*GetParam().field = "cafe\u0301";
    EXPECT_EQ(composed, decomposed);
    decomposed.*GetParam().field = "cafe\u0300";
    EXPECT_NE(composed, decomposed);
}

TEST_P(EventText, ChangedInACopy_StaysInTheOriginal) {
    const TimelineEvent original = fullEvent();
    TimelineEvent copy = original;
    copy.*GetParam().field = "changed";
    EXPECT_EQ(original, fullEvent());
}

INSTANTIATE_TEST_SUITE_P(Fields, EventText, testing::ValuesIn(textFields), RowName());

TEST(TimelineEvent, Fresh_HasEmptyTextsAndNoMark) {
    const TimelineEvent event;
    for (const auto& [name, field] : textFields) EXPECT_EQ(event.*field, "") << name;
    EXPECT_FALSE(event.highlighted);
    EXPECT_EQ(event.id, UUID());
}

TEST(TimelineEvent, OtherMark_MakesEventsUnequal) {
    TimelineEvent other = fullEvent();
    other.highlighted = false;
    EXPECT_NE(other, fullEvent());
}

TEST(TimelineEvent, AnyOtherByteOfTheIdentifier_MakesEventsUnequal) {
    for (std::size_t i = 0; i < 16; ++i) {
        TimelineEvent other = fullEvent();
        other.id.bytes[i] ^= 1;
        EXPECT_NE(other, fullEvent());
    }
}

TEST(TimelineEvent, ReadTwiceFromTheSameLine_IsUnequalByItsIdentifier) {
    UUIDGenerator generator;
    TimelineEvent first = fullEvent();
    TimelineEvent second = fullEvent();
    first.id = generator.next();
    second.id = generator.next();
    EXPECT_NE(first, second);
}

TEST(TimelineEvent, Copy_IsEqualUntilEitherIsChanged) {
    TimelineEvent original = fullEvent();
    TimelineEvent copy = original;
    EXPECT_EQ(copy, original);
    copy.comments = "changed";
    EXPECT_NE(copy, original);
    original.comments = "changed";
    EXPECT_EQ(copy, original);
    original.highlighted = false;
    EXPECT_NE(copy, original);
}

struct TextPair {
    const char* name;
    std::string_view a;
    std::string_view b;
    bool equal;
};

class EqualText : public testing::TestWithParam<TextPair> {};

TEST_P(EqualText, Row) {
    TimelineEvent a;
    TimelineEvent b;
    a.clipName = GetParam().a;
    b.clipName = GetParam().b;
    EXPECT_EQ(a == b, GetParam().equal);
    EXPECT_EQ(b == a, GetParam().equal);
}

const std::vector<TextPair> textPairs{
    {"Same", "Scène 1", "Scène 1", true},
    {"Case", "clip", "Clip", false},
    {"TrailingBlank", "clip", "clip ", false},
    {"TrailingNUL", "clip", std::string_view("clip\0", 5), false},
    {"BehindNUL", std::string_view("a\0b", 3), std::string_view("a\0c", 3), false},
    {"ComposedHangul", "\uD55C", "\u1112\u1161\u11AB", true},
    {"AngstromSignAndLetter", "\u212B", "\u00C5", true},
    {"OhmSignAndOmega", "\u2126", "\u03A9", true},
    {"OrderOfMarksOfDifferentClasses", "a\u0323\u0302", "a\u0302\u0323", true},
    {"OrderOfMarksOfTheSameClass", "a\u0301\u0300", "a\u0300\u0301", false},
    {"BeyondTheBasicPlane", "\U0001D15E", "\U0001D157\U0001D165", true},
    {"GreekQuestionMarkAndSemicolon", "\u037E", ";", true},
    {"LigatureIsOnlyCompatible", "\uFB01", "fi", false},
    {"FullWidthIsOnlyCompatible", "\uFF21", "A", false},
    {"SuperscriptIsOnlyCompatible", "\u00B2", "2", false},
    {"NoBreakSpaceIsNotSpace", "a\u00A0b", "a b", false},
    {"DotlessI", "\u0131", "i", false},
    {"ByteOrderMark", "\uFEFFclip", "clip", false},
    {"LineEnds", "a\r\nb", "a\nb", false},
};
INSTANTIATE_TEST_SUITE_P(Pairs, EqualText, testing::ValuesIn(textPairs), RowName());

TEST(TimelineDocument, Fresh_IsEmptyAtTheDefaultRate) {
    const TimelineDocument document;
    EXPECT_EQ(document.sourceURL, std::nullopt);
    EXPECT_TRUE(document.events.empty());
    EXPECT_TRUE(document.removedEvents.empty());
    EXPECT_EQ(document.fps, 24.0);
    EXPECT_EQ(document.fpsSource, "Default");
}

TEST(TimelineDocument, EventTakenOut_ChangesTheDocumentOnlyWhenWrittenBack) {
    TimelineDocument document;
    document.events = std::vector{fullEvent(), fullEvent()};
    TimelineEvent taken = document.events[1].record();
    taken.comments = "changed";
    EXPECT_EQ(document.events[1].comments, fullEvent().comments);
    document.events.replace(1, taken);
    EXPECT_EQ(document.events[1].comments, "changed");
    EXPECT_EQ(document.events[0].record(), fullEvent());
}

TEST(TimelineDocument, CannotBeCopied) {
    EXPECT_FALSE(std::is_copy_constructible_v<TimelineDocument>);
    EXPECT_FALSE(std::is_copy_assignable_v<TimelineDocument>);
}

TEST(TimelineParseResult, CopyIsIndependent) {
    const TimelineParseResult result{std::vector{fullEvent()}, 25, "File"};
    TimelineParseResult copy = result;
    edit(copy.events, 0, [](auto& event) { event.clipName = "changed"; });
    EXPECT_EQ(result.events[0].record(), fullEvent());
}

}  // namespace
}  // namespace clipvane::test
