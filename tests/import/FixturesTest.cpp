// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

#include <clipvane/TimelineParser.h>
#include "import/Summary.h"
#include "support/RowName.h"
#include "support/ScopedLocale.h"

namespace clipvane::test {
namespace {

const std::filesystem::path fixtures = CLIPVANE_FIXTURES;

struct Row {
    std::string_view name;
    std::string_view file;
    double fps;
    std::string_view fpsSource;
    std::vector<std::string> events;
};

class SampleTimeline : public testing::TestWithParam<Row> {};

TEST_P(SampleTimeline, IsRead) {
    const auto result = TimelineParser::parse(fixtures / GetParam().file);
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->fps, GetParam().fps);
    EXPECT_EQ(result->fpsSource, GetParam().fpsSource);
    std::vector<std::string> events;
    for (const EventView& event : result->events) events.push_back(summary(event));
    EXPECT_THAT(events, testing::ElementsAreArray(GetParam().events));
}

const std::string cut1 =
    "001  A001C003_230412_R2XL     V     C        01:02:10:00 01:02:14:12 01:00:00:00 01:00:04:12";
const std::string cut2 =
    "002  A001C003_230412_R2XL     V     C        01:02:14:12 01:02:14:12 01:00:04:12 01:00:04:12";
const std::string dissolve =
    "002  A002C001_230412_R2XL     V     D    024 02:11:00:00 02:11:03:00 01:00:04:12 01:00:07:12";
const std::string black =
    "003  BL       V     C        00:00:00:00 00:00:01:00 01:00:07:12 01:00:08:12";
const std::string wipe =
    "004  A003C007_230413_R2XL     AA/V  W001 012 03:00:00:00 03:00:05:00 01:00:08:12 01:00:13:12";
const std::string music =
    "005  MUSIC01  A2    C        00:00:00:00 00:00:13:12 01:00:00:00 01:00:13:12  ";

INSTANTIATE_TEST_SUITE_P(
    EDL, SampleTimeline,
    testing::Values(
        Row{"harbour",
            "harbour.edl",
            24,
            "Default",
            {"001|Harbour "
             "wide|A001C003_230412_R2XL|01:02:10:00|01:02:14:12|01:00:00:00|01:00:04:12|"
             "EDL|V||" +
                 cut1 +
                 "\n* FROM CLIP NAME: Harbour wide\n"
                 "* SOURCE FILE: /media/day1/A001C003_230412_R2XL.mov|no",
             "002|Clip 002|A001C003_230412_R2XL|01:02:14:12|01:02:14:12|01:00:04:12|01:00:04:12|"
             "EDL|V||" +
                 cut2 + "|no",
             "002|Harbour "
             "wide|A002C001_230412_R2XL|02:11:00:00|02:11:03:00|01:00:04:12|01:00:07:12|"
             "EDL|V||" +
                 dissolve +
                 "\n* FROM CLIP NAME: Harbour wide\n* TO CLIP NAME: Pilot boat\n"
                 "* COMMENT: speed to be checked: half|no",
             "003|Clip 003|BL|00:00:00:00|00:00:01:00|01:00:07:12|01:00:08:12|EDL|V||" + black +
                 "|no",
             "004|12|A003C007_230413_R2XL|03:00:00:00|03:00:05:00|01:00:08:12|01:00:13:12|EDL|AA/"
             "V||" +
                 wipe + "\n* from clip name: Crane: Night: 12\n* FROM CLIP NAME:|no",
             "005|Clip 005|MUSIC01|00:00:00:00|00:00:13:12|01:00:00:00|01:00:13:12|EDL|A2||" +
                 music + "\n   * ASC_SOP (1.0 1.0 1.0)(0.0 0.0 0.0)(1.0 1.0 1.0)|no"}},
        Row{"carriageReturns",
            "pier-crlf.edl",
            29.97,
            "File",
            {"001|Pier at dawn.mov|AX|00:00:10:00|00:00:12:00|00:00:00:00|00:00:02:00|EDL|V||"
             "001  AX       V     C        00:00:10:00 00:00:12:00 00:00:00:00 00:00:02:00\n"
             "* FROM CLIP NAME: Pier at dawn.mov|no",
             "002|Pier at dawn.mov|AX|00:00:10:00|00:00:12:00|00:00:00:00|00:00:02:00|EDL|A||"
             "002  AX       A     C        00:00:10:00 00:00:12:00 00:00:00:00 00:00:02:00\n"
             "* FROM CLIP NAME: Pier at dawn.mov|no"}},
        Row{"latin1",
            "scenes-latin1.edl",
            24,
            "Default",
            {"001|Caf\uFFFD \uFFFD "
             "l'aube|CAF\uFFFD|00:00:10:00|00:00:12:00|00:00:00:00|00:00:02:00|"
             "EDL|V||"
             "001  CAF\uFFFD     V     C        00:00:10:00 00:00:12:00 00:00:00:00 00:00:02:00\n"
             "* FROM CLIP NAME: Caf\uFFFD \uFFFD l'aube|no",
             "002|Clip 002|AX|00:00:20:00|00:00:21:00|00:00:02:00|00:00:03:00|EDL|V||"
             "002  AX       V     C        00:00:20:00 00:00:21:00 00:00:02:00 00:00:03:00|no"}}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    XML, SampleTimeline,
    testing::Values(
        Row{"xmeml",
            "regatta.xml",
            25,
            "File",
            {"1|Start line|clipitem-1|00:00:04:00|00:00:07:00|00:00:00:00|00:00:03:00|"
             "XML|clipitem||clipitem|no",
             "2|Buoy & crew|/media/buoy two.mov|00:00:01:15|00:00:21:15||00:00:06:00|"
             "XML|clipitem|keep|clipitem|no",
             "3|Wind|clipitem-3|00:00:00:00|00:00:06:00|00:00:00:00|00:00:06:00|"
             "XML|clipitem||clipitem|no"}},
        Row{"fcpxml",
            "lighthouse.fcpxml",
            30000.0 / 1001.0,
            "File",
            {"1|||||||XML|||event|no",
             "2|Lamp room|r2|00:59:56:12|01:00:01:12|00:00:00:00|00:00:05:00|"
             "XML|asset-clip||asset-clip|no",
             "3|Lighthouse|r4|00:59:56:12|00:59:58:12|00:59:57:12|00:59:59:12|XML|1||title|no",
             "4|Gap||00:59:56:12|00:59:57:12|00:00:05:00|00:00:06:00|XML|gap||gap|no",
             "5|Gull|r3|||00:00:06:00|00:00:09:00|XML|-1||asset-clip|no",
             "6|mc-clip|r9|||00:00:09:00|00:00:19:00|XML|mc-clip||mc-clip|no",
             "7|Fog \u2013 "
             "late||01:00:00:00|01:00:01:18|00:05:29:20|00:05:31:08|XML|clip||clip|no"}},
        Row{"generic",
            "generic.xml",
            25,
            "File",
            {"7|Quay|A007|00:00:10:00|00:00:20:00|01:00:00:00|01:00:10:00|"
             "XML|V|second, with <angles>|event|yes",
             "2|Mole||00:00:10:00|00:00:12:00|01:00:10;00|01:00:12:00|XML|||event|no"}}),
    RowName());

/// Everything that the samples, and texts with numbers and letters that locales treat in their own
/// way, are read as.
std::string importReport() {
    std::string report;
    const auto add = [&](const EventList& events) {
        for (const EventView& event : events) report += summary(event) + '\n';
    };
    for (const char* file : {"harbour.edl", "pier-crlf.edl", "scenes-latin1.edl", "regatta.xml",
                             "lighthouse.fcpxml", "generic.xml"}) {
        const auto result = TimelineParser::parse(fixtures / file);
        if (!result) return "unreadable";
        report += std::to_string(static_cast<int>(result->fps * 1000)) + '\n';
        add(result->events);
    }
    add(TimelineParser::parseXML(
        "<A><CLIPITEM><IN>1.5</IN><OUT>1,5</OUT></CLIPITEM><TITLE/><CLIP in='2.5s'/>"
        "<clip in='1,000'/><clip in='INF/1'/><clip in='1e3'/></A>",
        23.976));
    add(TimelineParser::parseEDL(
        "1 A\u0131\u0130 V C 00:00:00:00 00:00:00:01 00:00:00:02 00:00:00:03\n"
        "from cl\u0131p name: \u0131\u0130iI\nFROM CL\u0130P NAME: no"));
    for (const char* rate :
         {"frameDuration='1001/30000S'", "FPS=23.976", "fps=23,976", "TIMEBASE='25'"}) {
        report +=
            std::to_string(static_cast<int>(TimelineParser::detectFPS(rate).value_or(0) * 1000));
    }
    return report;
}

TEST(Import, UnderEveryLocale_GivesTheSameBytes) {
    const std::string expected = importReport();
    EXPECT_GT(expected.size(), 1000U);
    for (const char* name : localesOfTests) {
        const ScopedLocale locale(name);
        ASSERT_TRUE(locale.isSet()) << name << " is missing in LOCPATH; run the tests with ctest";
        EXPECT_EQ(importReport(), expected) << name;
    }
}

}  // namespace
}  // namespace clipvane::test
