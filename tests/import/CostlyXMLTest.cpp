// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <clipvane/TimelineParser.h>
#include "support/LongTest.h"

namespace clipvane::test {
namespace {

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i) all += text;
    return all;
}

std::size_t eventCount(const std::string& xml) {
    return TimelineParser::parseXML(xml, 25).size();
}

/// Entities that each hold the next.
std::string chain(int length) {
    std::string xml = "<!DOCTYPE a [";
    for (int i = 0; i < length; ++i) {
        xml += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i + 1) + ";'>";
    }
    return xml + "<!ENTITY e" + std::to_string(length) + " 'x'>]><a><clip/>&e0;<clip/></a>";
}

TEST(CostlyXML, ChainOfEntities_IsFollowed) {
    EXPECT_EQ(eventCount(chain(256)), 2U);
}

/// Followed, it would use up the stack.
TEST(CostlyXML, EndlessChainOfEntities_IsMalformed) {
    EXPECT_EQ(eventCount(chain(257)), 0U);
    EXPECT_EQ(eventCount(chain(200'000)), 0U);
}

/// Whatever the order in which its entities are declared.
TEST(CostlyXML, ChainDeclaredInAnyOrder_IsMeasured) {
    for (const int length : {256, 257}) {
        std::vector<std::string> declarations{"<!ENTITY e" + std::to_string(length) + " 'x'>"};
        for (int i = 0; i < length; ++i) {
            declarations.push_back("<!ENTITY e" + std::to_string(i) + " 'a &amp; &e" +
                                   std::to_string(i + 1) + "; b'>");
        }
        for (int order = 0; order < 20; ++order) {
            std::ranges::shuffle(declarations, std::mt19937(static_cast<unsigned>(order)));
            std::string xml = "<!DOCTYPE a [";
            for (const std::string& declaration : declarations) xml += declaration;
            EXPECT_EQ(eventCount(xml + "]><a><clip/>&e0;<clip/></a>"), length == 256 ? 2U : 0U);
        }
    }
}

/// The parser follows it while it reads the declaration.
TEST(CostlyXML, EndlessChainInADefaultAttribute_IsMalformed) {
    std::string xml = chain(200'000);
    xml.insert(xml.find("]>"), "<!ATTLIST clip name CDATA '&e0;'>");
    EXPECT_EQ(eventCount(xml), 0U);
}

TEST(CostlyXML, ManyEntitiesWithReferences_AreNotLimited) {
    for (const int count : {257, 10'000}) {
        std::string xml = "<!DOCTYPE a [<!ENTITY amp '&#38;#38;'>";
        for (int i = 0; i < count; ++i) {
            xml += "<!ENTITY e" + std::to_string(i) + " 'a &amp; &last; b'>";
        }
        xml += "<!ENTITY last 'x'>]><a><clip/><b>&e" + std::to_string(count - 1) + ";</b></a>";
        EXPECT_EQ(eventCount(xml), 1U) << count;
    }
}

/// Each of the many has a longer chain with each that is declared.
TEST(CostlyXML, ChainUnderManyUsers_EndsBeforeItCosts) {
    std::string xml = "<!DOCTYPE a [";
    for (int i = 0; i < 100'000; ++i) {
        xml += "<!ENTITY u" + std::to_string(i) + " '&e0;'>";
    }
    for (int i = 0; i < 250; ++i) {
        xml += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i + 1) + ";'>";
    }
    EXPECT_EQ(eventCount(xml + "]><a><clip/></a>"), 0U);
}

/// An error only where they are used.
TEST(CostlyXML, EntitiesInACircle_CostNothingUnused) {
    const std::string circle =
        "<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&g;'><!ENTITY g '&e;'>]><a><clip/>";
    EXPECT_EQ(eventCount(circle + "<clip/></a>"), 2U);
    EXPECT_EQ(eventCount(circle + "&e;<clip/></a>"), 1U);
}

TEST(CostlyXML, EntitiesWithoutReferences_AreNotLimited) {
    std::string xml = "<!DOCTYPE a [";
    for (int i = 0; i < 10'000; ++i) xml += "<!ENTITY e" + std::to_string(i) + " 'x'>";
    EXPECT_EQ(eventCount(xml + "]><a>&e9999;<clip/></a>"), 1U);
}

TEST(CostlyXML, DeepDocument_IsRead) {
    const std::string xml =
        "<a>" + repeated("<b>", 100'000) + "<clip/>" + repeated("</b>", 100'000) + "<clip/></a>";
    EXPECT_EQ(eventCount(xml), 2U);
}

TEST(CostlyXML, EndlesslyDeepDocument_EndsWithTheMillionthLevel) {
    CLIPVANE_LONG_TEST();
    const std::string inner = repeated("<b>", 999'998) + "<clip/>" + repeated("</b>", 999'998);
    EXPECT_EQ(eventCount("<a>" + inner + "<clip/></a>"), 2U);
    EXPECT_EQ(eventCount("<a><clip/><b><b>" + inner + "</b></b><clip/></a>"), 1U);
}

/// Elements that get `count` attributes each from their declaration.
std::string withDefaults(int count, std::size_t elements) {
    std::string xml = "<!DOCTYPE a [<!ATTLIST b";
    for (int i = 0; i < count; ++i) xml += " a" + std::to_string(i) + " CDATA '1'";
    return xml + ">]><a><clip/>" + repeated("<b/>", elements) + "<clip/></a>";
}

TEST(CostlyXML, DefaultAttributesForManyElements_AreMalformed) {
    CLIPVANE_LONG_TEST();
    EXPECT_EQ(eventCount(withDefaults(10'000, 10)), 2U);
    EXPECT_EQ(eventCount(withDefaults(10'000, 100'000)), 1U);
}

TEST(CostlyXML, DefaultAttributesWithoutEnd_AreMalformed) {
    CLIPVANE_LONG_TEST();
    EXPECT_EQ(eventCount(withDefaults(20'000, 1)), 0U);
    EXPECT_EQ(eventCount(withDefaults(400'000, 1)), 0U);
}

TEST(CostlyXML, DefaultAttributesOfManyElements_AreHarmless) {
    std::string xml = "<!DOCTYPE a [";
    for (int i = 0; i < 20'000; ++i) xml += "<!ATTLIST e" + std::to_string(i) + " b CDATA 'x'>";
    EXPECT_EQ(eventCount(xml + "]><a><clip/></a>"), 1U);
}

TEST(CostlyXML, DefaultAttributesAfterManyOthersOfTheirElement_AreMalformed) {
    std::string xml = "<!DOCTYPE a [<!ATTLIST b";
    for (int i = 0; i < 20'000; ++i) xml += " a" + std::to_string(i) + " CDATA #IMPLIED";
    const std::string end = ">]><a><clip/></a>";
    EXPECT_EQ(eventCount(xml + end), 1U);
    for (int i = 0; i < 10'000; ++i) xml += " b" + std::to_string(i) + " CDATA 'x'";
    EXPECT_EQ(eventCount(xml + end), 0U);
}

/// A megabyte that each of a hundred thousand end tags asks for.
TEST(CostlyXML, TextThatManyElementsEndWith_IsMalformed) {
    CLIPVANE_LONG_TEST();
    for (const std::string_view name : {"name", "comment", "in", "reel"}) {
        const auto ended = [&](std::size_t times) {
            const std::string open = "<" + std::string(name) + ">";
            const std::string close = "</" + std::string(name) + ">";
            return "<a><gap/><clip>" + repeated(open, times) + std::string(1'000'000, 't') +
                   repeated(close, times) + "</clip><gap/></a>";
        };
        EXPECT_EQ(eventCount(ended(10)), 3U) << name;
        EXPECT_EQ(eventCount(ended(100'000)), 2U) << name;
    }
}

/// A megabyte for each of a hundred thousand events.
TEST(CostlyXML, AssetsNameWithoutEndForEveryClip_IsMalformed) {
    CLIPVANE_LONG_TEST();
    const std::string asset = "<a><asset id='r' name='" + std::string(1'000'000, 'n') + "'/>";
    EXPECT_EQ(eventCount(asset + repeated("<clip ref='r'/>", 10) + "</a>"), 10U);
    const auto events =
        TimelineParser::parseXML(asset + repeated("<clip ref='r'/>", 100'000) + "</a>", 25);
    EXPECT_LT(events.size(), 200U);
    for (const EventView& event : events) ASSERT_EQ(event.clipName.size(), 1'000'000U);
}

/// Four times the document, and eight megabytes.
TEST(CostlyXML, EntityWithoutEndThatIsRepeated_IsMalformed) {
    const auto blowUp = [](std::size_t times) {
        return "<!DOCTYPE a [<!ENTITY e '" + std::string(1'000'000, 'e') +
               "'>]><a><gap/><clip><name>" + repeated("&e;", times) + "</name></clip><gap/></a>";
    };
    EXPECT_EQ(eventCount(blowUp(3)), 3U);
    EXPECT_EQ(eventCount(blowUp(20)), 2U);
}

}  // namespace
}  // namespace clipvane::test
