// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/EventList.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <clipvane/Timecode.h>
#include "model/FullEvent.h"
#include "model/KindsOfEvents.h"
#include "support/Records.h"

namespace clipvane::test {
namespace {

std::size_t convertRecords(std::vector<TimelineEvent>& events, double from, double to) {
    std::size_t count = 0;
    for (TimelineEvent& event : events) {
        for (std::string* timecode :
             {&event.sourceIn, &event.sourceOut, &event.recordIn, &event.recordOut}) {
            if (frames(*timecode, from)) ++count;
            *timecode = convertTimecode(*timecode, from, to);
        }
    }
    return count;
}

TEST(EventList, Converted_EveryTimecodeIsWhatItsTextBecomes) {
    auto events = allKinds();
    for (const char* timecode :
         {"99:59:59:29", "98:99:99:99", "99:99:99:99", "00:00:00:01", "100:00:00:00", "00:00:00:-1",
          "01:00:00;29", "x", ":::", "00:00:00:119"}) {
        events.push_back(changed([&](TimelineEvent& event) {
            event.sourceIn = timecode;
            event.recordOut = timecode;
        }));
    }
    EventList list(events);
    constexpr double unusual = 1e12;
    const std::vector rates{25.0, 24.0, 50.0, 1.0, 100.0, 101.0, 25.0, 1000.0, unusual, 30.0, 0.0};
    for (std::size_t i = 0; i + 1 < rates.size(); ++i) {
        const auto expected = convertRecords(events, rates[i], rates[i + 1]);
        EXPECT_EQ(list.convertTimecodes({rates[i], rates[i + 1]}), expected);
        ASSERT_EQ(records(list), events) << rates[i] << " to " << rates[i + 1];
    }
}

/// Lists whose timecodes all have the usual form are converted another way.
TEST(EventList, Converted_OfUsualTimecodesAlone_ShownOnesAreCounted) {
    constexpr std::size_t shown = 3'000;
    EventList list;
    for (std::size_t i = 0; i < shown + 2; ++i) {
        list.push_back(changed([&](TimelineEvent& event) {
            event.sourceIn = timecode(static_cast<std::int64_t>(i), 25, false);
        }));
    }
    list.erase(1'500);
    list.erase(0);
    auto events = records(list);
    EXPECT_EQ(list.convertTimecodes({25, 24}), 4 * shown);
    convertRecords(events, 25, 24);
    EXPECT_EQ(records(list), events);
}

/// A count beyond 64 bits would stop the program.
TEST(EventList, Converted_AnErasedEventsImpossibleTimecodeIsNotCounted) {
    EventList list(std::vector{fullEvent(), changed([](TimelineEvent& event) {
                                   event.recordOut = "9223372036854775807:0:0:0";
                               })});
    list.erase(1);
    EXPECT_EQ(list.convertTimecodes({25, 24}), 4U);
}

TEST(EventList, Converted_ErasedEventsStayAndCountNot) {
    EventList list(allKinds());
    const auto size = list.size();
    list.erase(0);
    list.erase(8);
    auto events = records(list);
    EXPECT_EQ(events.size(), size - 2);
    EXPECT_EQ(list.convertTimecodes({25, 30}), convertRecords(events, 25, 30));
    EXPECT_EQ(records(list), events);
}

}  // namespace
}  // namespace clipvane::test
