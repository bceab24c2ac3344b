// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <clipvane/TimelineParser.h>
#include "import/Summary.h"
#include "support/LongTest.h"

namespace clipvane::test {
namespace {

/// What a document may hold that is longer than a byte.
constexpr std::string_view body =
    "<asset id='r1' name='Pi\u00EBr'/><asset-clip ref='r1' offset='3600s' duration='1001/30000s'>"
    "<note>&#x3042;\U0001F3AC</note></asset-clip>\r\n"
    "<clipitem id='c'><name>&lt;\u3042&amp;</name><in> 10 </in><!-- \u00E9 --><out>20</out>"
    "<file id='f'><pathurl>file:///a%20b</pathurl></file><comment><![CDATA[<x>]]> y</comment>"
    "</clipitem><?note x?><event number='7' highlighted='TRUE'><source in='1s' out='2s'/></event>";

std::string summaries(std::string_view document) {
    std::string all;
    for (const EventView& event : TimelineParser::parseXML(document, 25)) {
        all += summary(event) + '\n';
    }
    return all;
}

/// Before the body stand `length` bytes.
std::string documentWith(std::size_t length) {
    std::string document = "<a><!--";
    document.append(length - document.size() - 3, '.');
    return document + "-->" + std::string(body) + "</a>";
}

/// The parser is fed with pieces of this size.
constexpr std::size_t pieceSize = std::size_t{1} << 26;

TEST(XMLPieces, WhereverThePieceEnds_TheEventsAreTheSame) {
    CLIPVANE_LONG_TEST();
    const std::string expected = summaries(documentWith(10));
    EXPECT_EQ(expected,
              "1|Pi\u00EBr|r1|||01:00:00:00|01:00:00:01|XML|asset-clip||asset-clip|no\n"
              "2|<\u3042&|c|00:00:00:10|00:00:00:20|||XML|clipitem|<x> y|clipitem|no\n"
              "7|||00:00:01:00|00:00:02:00|||XML|||event|yes\n");
    constexpr std::size_t step = 101;  // not every byte: a document of this size takes its time
    for (std::size_t before = 0; before <= body.size(); before += step) {
        ASSERT_EQ(summaries(documentWith(pieceSize - before)), expected)
            << "a piece ends behind " << body.substr(0, before);
    }
}

}  // namespace
}  // namespace clipvane::test
