// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include <clipvane/TimelineParser.h>
#include "support/LongTest.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

constexpr std::size_t length = 10'000'000;

/// Work over ten million characters that is linear takes milliseconds; anything else, minutes.
class LongText : public testing::Test {
  protected:
    ~LongText() override {
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        EXPECT_LT(taken.count(), isInstrumented ? 120 : 30) << "seconds";
    }

  private:
    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

std::string run(char c) {
    return std::string(length, c);
}

std::string repeated(std::string_view text, std::size_t size = length) {
    std::string all;
    all.reserve(size + text.size());
    while (all.size() < size) all += text;
    return all;
}

std::string eventLine(const std::string& number, const std::string& reel,
                      const std::string& blank) {
    return number + blank + reel + " V C 00:00:00:00 00:00:05:00" + blank +
           "01:00:00:00 01:00:05:00" + blank;
}

TEST_F(LongText, ColumnsAndBlanksOfAnEvent_AreRead) {
    CLIPVANE_LONG_TEST();
    const std::string accents = repeated("\u00E9");
    for (const auto& [number, reel, blank] :
         {std::tuple{std::string("1"), run('R'), std::string(" ")},
          std::tuple{run('7'), std::string("R"), std::string(" ")},
          std::tuple{std::string("1"), std::string("R"), run(' ')},
          std::tuple{std::string("1"), accents, repeated("\u3000")}}) {
        const auto events = TimelineParser::parseEDL(eventLine(number, reel, blank));
        ASSERT_EQ(events.size(), 1U);
        EXPECT_TRUE(events[0].eventNumber == number);
        EXPECT_TRUE(events[0].reelID == reel);
    }
}

TEST_F(LongText, LinesThatNearlyAreEvents_AreSkipped) {
    CLIPVANE_LONG_TEST();
    for (const auto& line :
         {run(' '), run('1'), repeated("1 "), repeated("00:00:00:00 "), "1 a b c " + run('0'),
          "1 a b c 00:00:00:00" + run(' '), repeated("\u3000"), repeated("\n"), repeated("\r\n"),
          repeated("\u2028"), repeated("\xE2\x80"), std::string(length, '\0')}) {
        EXPECT_TRUE(TimelineParser::parseEDL(line).empty());
    }
}

TEST_F(LongText, Comments_AreJoined) {
    CLIPVANE_LONG_TEST();
    const std::string event = eventLine("1", "R", " ");
    for (const auto& comment : {"* " + run('x'), run(' ') + '*', repeated("from clip nam") + "e",
                                repeated("F") + "ROM CLIP NAME"}) {
        const auto events = TimelineParser::parseEDL(event + "\n" + comment);
        ASSERT_EQ(events.size(), 1U);
        EXPECT_EQ(events[0].rawText().size(), event.size() + 1 + comment.size());
    }
    const auto events = TimelineParser::parseEDL(event + repeated("\n* x"));
    ASSERT_EQ(events.size(), 1U);
    EXPECT_GE(events[0].rawText().size(), length);
}

TEST_F(LongText, NearMissesOfFrameRates_GiveNone) {
    CLIPVANE_LONG_TEST();
    for (const auto& text :
         {repeated("fps"), repeated("fps "), "fps" + run(' '), "fps:" + run(' '), repeated("fps:"),
          repeated("frame rate"), repeated("<timebase>"), "<timebase>" + run(' '),
          "<timebase>" + run('1'), repeated("<timebase>1"), "timebase='" + run('1'),
          repeated("timebase='1"), "frameDuration='" + run('1') + "/1",
          repeated("frameDuration='1/"), repeated("f"), repeated("t"), repeated("\u017F"),
          repeated("fp\u017F"), run('\0')}) {
        EXPECT_EQ(TimelineParser::detectFPS(text), std::nullopt);
    }
}

TEST_F(LongText, ARateAfterMuchElse_IsFound) {
    CLIPVANE_LONG_TEST();
    EXPECT_EQ(TimelineParser::detectFPS(run('.') + "fps" + run(' ') + ":" + run('\n') + "25"),
              25.0);
    EXPECT_EQ(TimelineParser::detectFPS("fps:25." + run('0')), 25.0);
}

TEST_F(LongText, XMLTokens_AreRead) {
    CLIPVANE_LONG_TEST();
    const std::string before = "<a><clip/>";
    const std::string after = "<clip/></a>";
    for (const auto& token :
         {"<!--" + run('x') + "-->", "<?x " + run('x') + "?>", "<b c='" + run('x') + "'/>",
          "<b" + run(' ') + "/>", "<b " + std::string(length / 2, 'x') + "='1'/>", run('x'),
          "<![CDATA[" + run(']') + "]]>", repeated("&amp;"), repeated("<b/>")}) {
        EXPECT_EQ(TimelineParser::parseXML(before + token + after, 25).size(), 2U);
    }
    EXPECT_EQ(TimelineParser::parseXML("<!DOCTYPE a [<!--" + run('x') + "-->]><clip/>", 25).size(),
              1U);
}

/// Begun anew with every piece that is read of it, such a comment would take minutes.
TEST_F(LongText, AnXMLCommentOfManyPieces_IsReadInLinearTime) {
    CLIPVANE_LONG_TEST();
    const std::string comment = "<!--" + std::string(scaled(160'000'000), 'x') + "-->";
    EXPECT_EQ(TimelineParser::parseXML("<a><clip/>" + comment + "<clip/></a>", 25).size(), 2U);
}

TEST_F(LongText, XMLTextAndName_AreKept) {
    CLIPVANE_LONG_TEST();
    const auto events = TimelineParser::parseXML(
        "<clip id='" + run('i') + "'><name>" + run('n') + "</name></clip>", 25);
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].reelID.size(), length);
    EXPECT_EQ(events[0].clipName.size(), length);
}

TEST_F(LongText, XMLAttributesByTheThousand_AreLookedThrough) {
    std::string xml = "<clip";
    for (int i = 0; i < 100'000; ++i) xml += " a" + std::to_string(i) + "=''";
    EXPECT_EQ(TimelineParser::parseXML(xml + " name='x'/>", 25)[0].clipName, "x");
}

}  // namespace
}  // namespace clipvane::test
