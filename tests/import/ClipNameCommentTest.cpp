#include "import/ClipNameComment.h"

#include <gtest/gtest.h>

#include "support/RowName.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

struct Row {
    std::string_view name;
    std::string_view line;
    std::optional<std::string_view> clipName;
};

class ClipNameComment : public testing::TestWithParam<Row> {};

TEST_P(ClipNameComment, GivesTheName) {
    EXPECT_EQ(clipNameComment(GetParam().line), GetParam().clipName);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ClipNameComment,
    testing::Values(Row{"usual", "* FROM CLIP NAME: A001_C003", "A001_C003"},
                    Row{"lowerCaseWithoutStar", "from clip name: A001_C003", "A001_C003"},
                    Row{"mixedCase", "* From Clip Name: x", "x"},
                    Row{"caseOfNameKept", "* FROM CLIP NAME: aBc \u00E9", "aBc \u00E9"},
                    Row{"anywhereInLine", "note (from clip name) here: y", "y"},
                    Row{"glued", "XFROM CLIP NAMEX:z", "z"},
                    Row{"lastColonCounts", "* FROM CLIP NAME: Take 3: Scene: 12", "12"},
                    Row{"colonBeforeKeywordOnly", "note: from clip name", "from clip name"},
                    Row{"noColonWholeTrimmedLine", " \t* FROM CLIP NAME  A001 \u3000",
                        "* FROM CLIP NAME  A001"},
                    Row{"nothingAfterColon", "* FROM CLIP NAME:", ""},
                    Row{"blanksAfterColon", "* FROM CLIP NAME: \t\u00A0\u2003 ", ""},
                    Row{"nothingAfterLastColon", "* FROM CLIP NAME: A:", ""},
                    Row{"unicodeBlanksTrimmed", "from clip name:\u1680\u202Fa b\u205F\u3000",
                        "a b"},
                    Row{"newlinesTrimmed", "from clip name: \r\v\f\u0085\u2028\u2029a\n", "a"},
                    Row{"zeroWidthKept", "from clip name: \u200Ba\uFEFF", "\u200Ba\uFEFF"},
                    Row{"otherSeparatorsKept",
                        "from clip name: \x1F"
                        "a\u180E\u2060\x1C",
                        "\x1F"
                        "a\u180E\u2060\x1C"},
                    Row{"nulKept", "from clip name: \0a\0"sv, "\0a\0"sv},
                    Row{"nulBefore", "\0from clip name: a"sv, "a"},
                    Row{"fullWidthColonDoesNotSplit", "from clip name: a\uFF1Ab", "a\uFF1Ab"},
                    Row{"greekQuestionMarkDoesNotSplit", "from clip name: a\u037Eb", "a\u037Eb"},
                    Row{"combiningMarkAfterColon", "from clip name:\u0301 a", "\u0301 a"},
                    Row{"combiningMarkAfterKeyword", "from clip name\u0301: a", "a"},
                    Row{"combiningMarkInKeyword", "fro\u0301m clip name: a", std::nullopt},
                    Row{"dotlessI", "from cl\u0131p name: a", "a"},
                    Row{"dottedCapitalI", "FROM CL\u0130P NAME: a", std::nullopt},
                    Row{"ligatureFF", "\uFB00rom clip name: a", "a"},
                    Row{"ligatureFFAtVeryStart", "\uFB00ROM CLIP NAME", "\uFB00ROM CLIP NAME"},
                    Row{"ligatureFFCutOff", "\uFB00rom clip na", std::nullopt},
                    Row{"ligatureFI", "\uFB01rom clip name: a", std::nullopt},
                    Row{"fullWidthLetters", "\uFF26ROM CLIP NAME: a", std::nullopt},
                    Row{"twoBlanks", "* FROM  CLIP NAME: a", std::nullopt},
                    Row{"tab", "* FROM\tCLIP NAME: a", std::nullopt},
                    Row{"noBreakSpace", "* FROM\u00A0CLIP NAME: a", std::nullopt},
                    Row{"startsAnew", "FROM FROM CLIP NAME: a", "a"},
                    Row{"startsAnewWithinWord", "FFROM CLIP NAME: a", "a"},
                    Row{"cutOff", "* FROM CLIP NAM", std::nullopt},
                    Row{"sourceFile", "* SOURCE FILE: a.mov", std::nullopt},
                    Row{"toClipName", "* TO CLIP NAME: B", std::nullopt},
                    Row{"replacedBytes", "\uFFFDfrom clip name: \uFFFD", "\uFFFD"},
                    Row{"empty", "", std::nullopt}),
    RowName());

}  // namespace
}  // namespace clipvane::test
