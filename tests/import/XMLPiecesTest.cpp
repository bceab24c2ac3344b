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

// The parser is fed with pieces of this size if a document is larger than that.
constexpr std::size_t pieceSize = std::size_t{1} << 18;
constexpr std::size_t largestWhole = std::size_t{1} << 26;

TEST(XMLPieces, WhereverAPieceEnds_TheEventsAreTheSame) {
    CLIPVANE_LONG_TEST();
    EXPECT_EQ(summaries("<a>" + std::string(body) + "</a>"),
              "1|Pi\u00EBr|r1|||01:00:00:00|01:00:00:01|XML|asset-clip||asset-clip|no\n"
              "2|<\u3042&|c|00:00:00:10|00:00:00:20|||XML|clipitem|<x> y|clipitem|no\n"
              "7|||00:00:01:00|00:00:02:00|||XML|||event|yes\n");

    // Behind each byte of a body ends a piece, of another body each time.
    std::string whole = "<a>";
    std::string inPieces = whole;
    for (std::size_t before = 0; before <= body.size(); ++before) {
        const std::size_t end = (before + 1) * pieceSize;
        inPieces += "<n>";
        inPieces.resize(end - before - 4, '.');
        inPieces += "</n>";
        inPieces += body;
        whole += body;
    }
    ASSERT_GT(inPieces.size(), largestWhole);
    EXPECT_EQ(summaries(inPieces += "</a>"), summaries(whole += "</a>"));
}

}  // namespace
}  // namespace clipvane::test
