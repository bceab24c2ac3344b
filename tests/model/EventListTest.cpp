// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/EventList.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>

#include "model/FoundEvent.h"
#include "model/FullEvent.h"
#include "model/KindsOfEvents.h"
#include "support/Records.h"

namespace clipvane::test {
namespace {

TEST(EventList, WhatIsPutIn_ComesOut) {
    const auto events = allKinds();
    const EventList list(events);
    ASSERT_EQ(list.size(), events.size());
    for (std::size_t row = 0; row < events.size(); ++row) {
        EXPECT_EQ(list[row].record(), events[row]) << "row " << row;
    }
}

TEST(EventList, WhatIsPutIn_IsKeptWithoutTextsOfUsualTimecodes) {
    const auto events = allKinds();
    const EventList list(events);
    for (std::size_t row = 0; row < events.size(); ++row) {
        SCOPED_TRACE("row " + std::to_string(row));
        const TimelineEvent& event = events[row];
        const KeptEvent kept = list.kept(row);
        EXPECT_EQ(kept.eventNumber, event.eventNumber);
        EXPECT_EQ(kept.clipName, event.clipName);
        EXPECT_EQ(kept.reelID, event.reelID);
        EXPECT_EQ(kept.track, event.track);
        EXPECT_EQ(kept.format, event.format);
        EXPECT_EQ(kept.comments, event.comments);
        EXPECT_EQ(kept.highlighted, event.highlighted);
        EXPECT_EQ(kept.isFromEDL, event.format == "EDL");
        const std::array texts{event.sourceIn, event.sourceOut, event.recordIn, event.recordOut};
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const RowTimecode timecode = kept.timecodes[i];
            const auto packed = PackedTimecode::pack(texts[i]);
            ASSERT_EQ(timecode.isPacked(), packed.has_value()) << texts[i];
            if (packed) {
                EXPECT_EQ(timecode.packed().bits(), packed->bits());
            } else {
                EXPECT_EQ(list.unusualText(timecode), texts[i]);
            }
        }
    }
}

TEST(EventList, AView_ShowsWhatTheRecordHas) {
    const EventList list(allKinds());
    for (const EventView& view : list) {
        const TimelineEvent event = view.record();
        EXPECT_EQ(view.eventNumber, event.eventNumber);
        EXPECT_EQ(view.sourceIn, event.sourceIn);
        EXPECT_EQ(view.recordOut, event.recordOut);
        EXPECT_EQ(view.comments, event.comments);
        EXPECT_EQ(view.highlighted, event.highlighted);
        EXPECT_EQ(view.rawText(), event.rawText);
        EXPECT_EQ(view.id(), event.id);
    }
}

TEST(EventList, New_IsEmpty) {
    const EventList list;
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(list.size(), 0U);
    EXPECT_EQ(list.begin(), list.end());
}

TEST(EventList, ARow_IsSmall) {
    EXPECT_LE(sizeof(EventRow), 56U);
}

// Reading.

constexpr std::string_view keptText = "001 AX V C 01:00:00:00\nskipped\n* FROM CLIP NAME: Pier";

FoundEvent foundIn(std::string_view text) {
    return {.eventNumber = text.substr(0, 3),
            .clipName = text.substr(text.size() - 4),
            .reelID = text.substr(4, 2),
            .track = text.substr(7, 1),
            .timecodes = {text.substr(11, 11), "", "01:00:00;12", "02:00:00:00"},
            .format = "EDL",
            .lines = text};
}

bool liesIn(std::string_view whole, std::string_view part) {
    return part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size();
}

TEST(EventList, FoundInAKeptText_ItsColumnsStayThere) {
    EventList list;
    const std::string_view text = list.keep(std::string(keptText));
    list.append(foundIn(text));
    const EventView event = list[0];
    for (const auto column : {event.eventNumber, event.clipName, event.reelID, event.track}) {
        EXPECT_TRUE(liesIn(text, column)) << column;
    }
    EXPECT_EQ(event.eventNumber, "001");
    EXPECT_EQ(event.clipName, "Pier");
    EXPECT_EQ(event.reelID, "AX");
    EXPECT_EQ(event.track, "V");
    EXPECT_EQ(event.sourceIn, "01:00:00:00");
    EXPECT_EQ(event.sourceOut, "");
    EXPECT_EQ(event.recordIn, "01:00:00;12");
    EXPECT_EQ(event.recordOut, "02:00:00:00");
    EXPECT_EQ(event.format, "EDL");
    EXPECT_EQ(event.comments, "");
    EXPECT_FALSE(event.highlighted);
    EXPECT_EQ(event.rawText(), keptText);
}

TEST(EventList, AMadeName_IsCopied) {
    EventList list;
    FoundEvent found = foundIn(list.keep(std::string(keptText)));
    std::string name = "Clip 001";
    found.clipName = name;
    list.append(found);
    name = "written over";
    EXPECT_EQ(list[0].clipName, "Clip 001");
    EXPECT_EQ(list[0].reelID, "AX");
    EXPECT_EQ(list[0].rawText(), keptText);
}

TEST(EventList, LinesThatBelongToOthers_AreJoinedByTheReader) {
    EventList list([](std::string_view lines) { return "joined " + std::string(lines); });
    FoundEvent found = foundIn(list.keep(std::string(keptText)));
    list.append(found);
    found.isJoined = true;
    list.append(found);
    EXPECT_EQ(list[0].rawText(), keptText);
    EXPECT_EQ(list[1].rawText(), "joined " + std::string(keptText));
    const EventList copy = list;
    EXPECT_EQ(copy[1].rawText(), "joined " + std::string(keptText));
}

TEST(EventList, LinesLongerThanARowCanTell_GiveTheSameTexts) {
    EventList list;
    const std::string_view text =
        list.keep(std::string(keptText.substr(0, 23)) + std::string(wide, '*') + "\nPier");
    list.append(foundIn(text));
    EXPECT_EQ(list[0].clipName, "Pier");
    EXPECT_TRUE(liesIn(text, list[0].clipName));
    EXPECT_EQ(list[0].rawText(), text);
    EXPECT_EQ(list[0].format, "EDL");
}

// Identifiers.

TEST(EventList, ReadEvents_HaveRandomIdentifiersThatStay) {
    std::set<std::string> drawn;
    for (int i = 0; i < 2; ++i) {
        EventList list;
        const std::string_view text = list.keep(std::string(keptText));
        for (int event = 0; event < 50; ++event) list.append(foundIn(text));
        for (const EventView& event : list) {
            const UUID id = event.id();
            EXPECT_EQ(id.bytes[6] >> 4, 4) << "version 4";
            EXPECT_EQ(event.id(), id);
            EXPECT_EQ(event.record().id, id);
            drawn.insert(id.text());
        }
    }
    EXPECT_EQ(drawn.size(), 100U);
}

TEST(EventList, Copied_BothHaveTheSameIdentifiersButDrawNewOnesApart) {
    EventList list;
    const std::string_view text = list.keep(std::string(keptText));
    list.append(foundIn(text));
    list.append(foundIn(text));
    static_cast<void>(list[1].id());
    EventList copy = list;
    EXPECT_EQ(copy[0].id(), list[0].id());
    EXPECT_EQ(copy[1].id(), list[1].id());
    list.append(foundIn(text));
    copy.append(foundIn(text));
    EXPECT_NE(copy[2].id(), list[2].id());
}

TEST(EventList, GivenIdentifiers_AreKeptDoublesIncluded) {
    const EventList list(std::vector{fullEvent(), fullEvent()});
    EXPECT_EQ(list[0].id(), fullEvent().id);
    EXPECT_EQ(list[1].id(), fullEvent().id);
}

// Changing.

TEST(EventList, Replaced_OnlyThatEventChanges) {
    auto events = allKinds();
    EventList list(events);
    for (std::size_t row = 0; row < events.size(); ++row) {
        events[row] = events[(row * 7 + 3) % events.size()];
        list.replace(row, events[row]);
        ASSERT_EQ(records(list), events) << "row " << row;
    }
}

TEST(EventList, Erased_TheOthersMoveUp) {
    auto events = allKinds();
    EventList list(events);
    for (const std::size_t row : {events.size() - 1, std::size_t{0}, std::size_t{5}}) {
        events.erase(events.begin() + static_cast<std::ptrdiff_t>(row));
        list.erase(row);
        EXPECT_EQ(records(list), events);
    }
    while (!list.empty()) list.erase(0);
    EXPECT_TRUE(records(list).empty());
    list.push_back(fullEvent());
    EXPECT_EQ(records(list), std::vector{fullEvent()});
}

TEST(EventList, Comments_AreSetChangedAndTakenAway) {
    EventList list(allKinds());
    const TimelineEvent before = list[2].record();
    list.setComments(2, "one\r\ntwo");
    EXPECT_EQ(list[2].comments, "one\r\ntwo");
    list.setComments(2, std::string(wide, 'c'));
    EXPECT_EQ(list[2].comments, std::string(wide, 'c'));
    list.setComments(2, "");
    EXPECT_EQ(list[2].record(), before);
    EXPECT_EQ(list[0].comments, fullEvent().comments);
}

TEST(EventList, MovedAndCopied_ListsStandByThemselves) {
    const auto events = allKinds();
    EventList first(events);
    EventList copy = first;
    EventList moved = std::move(first);
    EXPECT_EQ(records(copy), events);
    EXPECT_EQ(records(moved), events);
    copy.setComments(0, "of the copy");
    copy.replace(1, TimelineEvent{});
    copy.erase(2);
    EXPECT_EQ(records(moved), events);
    first = {};
    first.push_back(fullEvent());
    EXPECT_EQ(records(first), std::vector{fullEvent()});
    moved = copy;
    EXPECT_EQ(records(moved), records(copy));
}

// Views.

/// Run under the address sanitizer, too, which sees a text that is gone.
TEST(EventList, AViewedEvent_StaysReadableWhateverHappensToOthersAndWhenItIsErased) {
    auto events = allKinds();
    EventList list(events);
    for (std::size_t row = 0; row + 1 < events.size(); ++row) {
        const EventView view = list[row];
        const EventView next = list[row + 1];
        const EventList copy = list;
        for (int i = 0; i < 600; ++i) {
            list.push_back(events[10]);
            list.push_back(events[static_cast<std::size_t>(i) % 14]);
        }
        list.setComments(list.size() - 1, "another's");
        list.replace(list.size() - 1, events[13]);
        list.erase(row);
        EXPECT_EQ(view.record(), events[row]) << "row " << row;
        EXPECT_EQ(next.record(), events[row + 1]) << "row " << row;
        list = EventList(events);
    }
}

TEST(EventList, SetComments_LeavesTheOtherFieldsOfAView) {
    EventList list(allKinds());
    const EventView view = list[0];
    list.setComments(0, std::string(wide, 'c'));
    list.setComments(0, "");
    EXPECT_EQ(view.clipName, fullEvent().clipName);
    EXPECT_EQ(view.sourceIn, fullEvent().sourceIn);
}

TEST(EventList, Converted_AViewKeepsItsTexts) {
    EventList list(allKinds());
    const EventView view = list[0];
    list.convertTimecodes({25, 24});
    EXPECT_EQ(view.clipName, fullEvent().clipName);
    EXPECT_EQ(view.comments, fullEvent().comments);
    EXPECT_EQ(view.rawText(), fullEvent().rawText);
}

}  // namespace
}  // namespace clipvane::test
