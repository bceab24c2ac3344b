// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/LineEnds.h"

#include <gtest/gtest.h>

#include "support/RowName.h"

namespace clipvane::test {
namespace {

constexpr LineEnd LF = LineEnd::lineFeed;
constexpr LineEnd CR = LineEnd::carriageReturn;
constexpr LineEnd CRLF = LineEnd::carriageReturnLineFeed;

struct KindRow {
    std::string name;
    std::string text;
    LineEnd kind;
};

class LineEndOf : public testing::TestWithParam<KindRow> {};

TEST_P(LineEndOf, Text) {
    EXPECT_EQ(lineEndOf(GetParam().text), GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LineEndOf,
    testing::Values(KindRow{"Empty", "", LF}, KindRow{"None", "text", LF},
                    KindRow{"LineFeeds", "a\nb\n", LF}, KindRow{"OnlyCR", "a\rb\r", CR},
                    KindRow{"OneCR", "\r", CR}, KindRow{"TwoCR", "\r\r", CR},
                    KindRow{"OnlyCRLF", "a\r\nb\r\n", CRLF},
                    KindRow{"EmptyLines", "\r\n\r\n", CRLF}, KindRow{"OneCRLF", "a\r\nb", CRLF},
                    KindRow{"LFThenCR", "\n\r", LF}, KindRow{"CRLFThenLF", "a\r\nb\n", LF},
                    KindRow{"CRLFThenCR", "a\r\nb\r", LF}, KindRow{"CRThenCRLF", "a\r\r\nb", LF},
                    KindRow{"OtherSeparatorsAreText", "a\u2028b\u2029c\u0085\r\n", CRLF}),
    RowName());

struct EndsRow {
    std::string name;
    std::string text;
    LineEnd kind;
    std::string expected;
};

class WithLineEnds : public testing::TestWithParam<EndsRow> {};

TEST_P(WithLineEnds, Text) {
    EXPECT_EQ(withLineEnds(GetParam().text, GetParam().kind), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, WithLineEnds,
                         testing::Values(EndsRow{"LF", "a\nb\n", LF, "a\nb\n"},
                                         EndsRow{"LFLeavesOthers", "a\rb\r\nc\n", LF,
                                                 "a\rb\r\nc\n"},
                                         EndsRow{"CR", "a\n\nb\n", CR, "a\r\rb\r"},
                                         EndsRow{"CRStays", "a\rb", CR, "a\rb"},
                                         EndsRow{"CRLF", "\na\n\nb\n", CRLF, "\r\na\r\n\r\nb\r\n"},
                                         EndsRow{"CRLFStays", "a\r\n\nb", CRLF, "a\r\n\r\nb"},
                                         EndsRow{"CRLFWithoutLineEnds", "text", CRLF, "text"},
                                         EndsRow{"CRLFEmpty", "", CRLF, ""}),
                         RowName());

}  // namespace
}  // namespace clipvane::test
