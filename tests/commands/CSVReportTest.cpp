// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/CSVReport.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include <clipvane/Timecode.h>
#include "commands/SampleEvents.h"
#include "support/Records.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

constexpr std::string_view header =
    "Event,Clip Name,Reel ID,FPS,FPS Source,Source In,Source Out,Source Duration,Record In,"
    "Record Out,Record Duration,Track,Format,Highlighted,Comments\n";

/// The report's only row, without its line feed.
std::string rowOf(const TimelineEvent& event, double fps = 25.0) {
    TimelineDocument document;
    document.events.push_back(event);
    document.fps = fps;
    document.fpsSource = "File";
    const std::string text = csvText(document);
    EXPECT_TRUE(text.starts_with(header)) << text;
    EXPECT_TRUE(text.ends_with('\n')) << text;
    return text.substr(header.size(), text.size() - header.size() - 1);
}

TEST(CSVReport, AnEvent_FifteenQuotedFields) {
    TimelineEvent event = sampleEvent("007");
    event.comments = "good take";
    EXPECT_EQ(rowOf(event), R"~("007","A001_C002","A001","25","File",)~"
                            R"~("01:00:00:00","01:00:04:00","00:00:04:00 (100 frames)",)~"
                            R"~("00:00:00:00","00:00:04:00","00:00:04:00 (100 frames)",)~"
                            R"~("V","EDL","No","good take")~");
}

TEST(CSVReport, TwoEventsTheSecondHighlighted_ThreeLinesNoThenYes) {
    TimelineDocument document;
    fillWithSamples(document, 2);
    edit(document.events, 1, [](auto& event) { event.highlighted = true; });
    const std::string tail =
        R"~("00:00:00:00","00:00:04:00","00:00:04:00 (100 frames)","V","EDL",)~";
    const std::string middle =
        R"~(,"A001_C002","A001","25","File","01:00:00:00","01:00:04:00","00:00:04:00 (100 frames)",)~" +
        tail;
    EXPECT_EQ(csvText(document), std::string(header) + R"~("001")~" + middle + "\"No\",\"\"\n" +
                                     R"~("002")~" + middle + "\"Yes\",\"\"\n");
}

TEST(CSVReport, NoEvents_HeaderAndAnEmptyLine) {
    EXPECT_EQ(csvText(TimelineDocument()), std::string(header) + "\n");
}

TEST(CSVReport, AllEventsRemoved_HeaderAndAnEmptyLine) {
    TimelineDocument document;
    document.removedEvents = {sampleEvent("001"), sampleEvent("002")};
    document.sourceURL = "/timelines/cut.edl";
    EXPECT_EQ(csvText(document), std::string(header) + "\n");
}

TEST(CSVReport, RemovedEvents_AreNotWritten) {
    TimelineDocument document;
    fillWithSamples(document, 1);
    const std::string before = csvText(document);
    document.removedEvents = {sampleEvent("002")};
    EXPECT_EQ(csvText(document), before);
}

TEST(CSVReport, EmptyEvent_EmptyFieldsAreTwoQuotes) {
    EXPECT_EQ(rowOf(TimelineEvent()),
              R"~("","","","25","File","","","-","","","-","","","No","")~");
}

struct QuotingRow {
    std::string name;
    std::string value;
    std::string field;
};

class CSVQuoting : public testing::TestWithParam<QuotingRow> {};

TEST_P(CSVQuoting, Comment) {
    TimelineEvent event = sampleEvent();
    event.comments = GetParam().value;
    const std::string row = rowOf(event);
    const std::string before = R"~("V","EDL","No",)~";
    const auto at = row.find(before);
    ASSERT_NE(at, std::string::npos) << row;
    EXPECT_EQ(row.substr(at + before.size()), GetParam().field);
}

const std::string longText(70000, 'x');

INSTANTIATE_TEST_SUITE_P(
    Rows, CSVQuoting,
    testing::Values(
        QuotingRow{"Empty", "", R"~("")~"}, QuotingRow{"Plain", "plain", R"~("plain")~"},
        QuotingRow{"Comma", "one, two", R"~("one, two")~"},
        QuotingRow{"SayHiBye", "say \"hi\"\nbye", R"~("say ""hi"" bye")~"},
        QuotingRow{"TwoLines", "one\ntwo", R"~("one two")~"},
        QuotingRow{"OnlyQuotes", "\"\"", R"~("""""")~"},
        QuotingRow{"OnlyLineFeeds", "\n\n\n", R"~("   ")~"},
        QuotingRow{"QuoteAtBothEnds", "\"a\"", R"~("""a""")~"},
        QuotingRow{"CarriageReturnStays", "a\rb", "\"a\rb\""},
        QuotingRow{"CRLF_CarriageReturnAndBlank", "a\r\nb", "\"a\r b\""},
        QuotingRow{"OtherLineEndsStay", "a\u2028b\u0085c", "\"a\u2028b\u0085c\""},
        QuotingRow{"NULStays", std::string("a\0b", 3), std::string("\"a\0b\"", 5)},
        QuotingRow{"NotASCII", "prise no 7 \u00e9t\u00e9 \U0001F3AC",
                   "\"prise no 7 \u00e9t\u00e9 \U0001F3AC\""},
        QuotingRow{"LongWithQuoteAtTheEnd", longText + "\"", "\"" + longText + "\"\"\""},
        QuotingRow{"LongWithLineFeedAtTheStart", "\n" + longText, "\" " + longText + "\""}),
    RowName());

/// Also bytes that differ from a quote and a line feed in one bit or by one, which stay.
TEST(CSVReport, AnyByteAnywhereInAField_IsReplacedOrStays) {
    TimelineEvent event = sampleEvent();
    for (const char c : std::string("\"\n!#\x02\x09\x0B\x0E\x8A\xA2\xFF")) {
        for (std::size_t length = 1; length <= 20; ++length) {
            for (std::size_t at = 0; at < length; ++at) {
                event.comments = std::string(length, 'x');
                event.comments[at] = c;
                std::string field = event.comments;
                if (c == '"') field.insert(at, 1, '"');
                if (c == '\n') field[at] = ' ';
                const std::string row = rowOf(event);
                ASSERT_TRUE(row.ends_with("\"No\",\"" + field + "\"")) << row;
            }
        }
    }
}

TEST(CSVReport, Durations_AreThoseThatTheWindowShows) {
    const std::vector<std::string> timecodes{"00:00:00:00", "01:00:00:00", "00:59:59:24",
                                             "99:59:59:99", "99:99:99:99", "01:00:00;02",
                                             "1:2:3:4",     "x",           ""};
    TimelineEvent event = sampleEvent();
    for (const double fps : {1.0, 23.976, 25.0, 100.0, 100.6, 101.0, 1000.0, 1e12}) {
        for (const std::string& in : timecodes) {
            for (const std::string& out : timecodes) {
                event.sourceIn = in;
                event.sourceOut = out;
                const std::string fields =
                    "\"" + in + "\",\"" + out + "\",\"" + durationDisplay(in, out, fps) + "\",";
                const std::string row = rowOf(event, fps);
                EXPECT_NE(row.find(fields), std::string::npos) << fps << ' ' << row;
            }
        }
    }
}

/// Each text field in turn holds a comma, a quote and a line feed.
TEST(CSVReport, EveryTextField_IsQuoted) {
    const std::string value = "a,\"b\"\nc";
    TimelineDocument document;
    TimelineEvent event;
    event.eventNumber = event.clipName = event.reelID = value;
    event.sourceIn = event.sourceOut = event.recordIn = event.recordOut = value;
    event.track = event.format = event.comments = value;
    document.events.push_back(event);
    document.fps = 25.0;
    document.fpsSource = value;
    const std::string q = R"~("a,""b"" c")~";
    EXPECT_EQ(csvText(document), std::string(header) + q + "," + q + "," + q + R"~(,"25",)~" + q +
                                     "," + q + "," + q + R"~(,"-",)~" + q + "," + q + R"~(,"-",)~" +
                                     q + "," + q + R"~(,"No",)~" + q + "\n");
}

TEST(CSVReport, ClipNameWithComma_StaysOneField) {
    TimelineEvent event = sampleEvent();
    event.clipName = "Interview, wide";
    EXPECT_TRUE(rowOf(event).starts_with(R"~("001","Interview, wide","A001",)~")) << rowOf(event);
}

TEST(CSVReport, InvalidSourceOut_DurationIsADash) {
    TimelineEvent event = sampleEvent();
    event.sourceOut = "unknown";
    EXPECT_NE(rowOf(event).find(R"~("01:00:00:00","unknown","-",)~"), std::string::npos);
}

TEST(CSVReport, EndBeforeStart_NoFrames) {
    TimelineEvent event = sampleEvent();
    std::swap(event.recordIn, event.recordOut);
    EXPECT_NE(rowOf(event).find(R"~("00:00:04:00","00:00:00:00","00:00:00:00 (0 frames)",)~"),
              std::string::npos);
}

TEST(CSVReport, DropFrameTimecodes_AsStored) {
    TimelineEvent event = sampleEvent();
    event.sourceIn = "01:00:00;00";
    event.sourceOut = "1:0:1;0";
    EXPECT_NE(rowOf(event, 29.97)
                  .find(R"~("29.97","File","01:00:00;00","1:0:1;0","00:00:01:00 (30 frames)",)~"),
              std::string::npos);
}

TEST(CSVReport, FractionalRate_ShortLabel) {
    EXPECT_NE(rowOf(sampleEvent(), 24000.0 / 1001).find(R"~("23.976","File")~"), std::string::npos);
}

TEST(CSVReportDeathTest, RateThatIsNoNumber_StopsTheProgram) {
    TimelineDocument document;
    fillWithSamples(document, 1);
    document.fps = std::numeric_limits<double>::infinity();
    EXPECT_DEATH(csvText(document), "clipvane: ");
}

TEST(CSVReport, RateThatIsNoNumberWithoutEvents_IsNotLookedAt) {
    TimelineDocument document;
    document.fps = std::numeric_limits<double>::infinity();
    EXPECT_EQ(csvText(document), std::string(header) + "\n");
}

TEST(WriteCSV, ManyChunks_FileHoldsTheWholeText) {
    const TemporaryFolder folder;
    TimelineDocument document;
    fillWithSamples(document, 5000);
    document.events.setComments(1234, std::string(1 << 20, 'c'));
    const auto written = writeCSV(document, folder / "report.csv");
    ASSERT_TRUE(written) << written.error().description;
    const std::string text = csvText(document);
    EXPECT_GT(text.size(), 1'500'000U);
    EXPECT_TRUE(contentOf(folder / "report.csv") == text);
    EXPECT_EQ(folder.names().size(), 1U);
}

TEST(WriteCSV, ExistingFile_IsReplacedWhole) {
    const TemporaryFolder folder;
    writeContent(folder / "report.csv", std::string(100000, 'o'));
    const TimelineDocument document;
    ASSERT_TRUE(writeCSV(document, folder / "report.csv"));
    EXPECT_EQ(contentOf(folder / "report.csv"), std::string(header) + "\n");
    EXPECT_EQ(folder.names().size(), 1U);
}

}  // namespace
}  // namespace clipvane::test
