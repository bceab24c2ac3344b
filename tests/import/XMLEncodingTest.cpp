// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLEncoding.h"

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

#include <string>

#include <clipvane/TimelineParser.h>
#include "base/UTF8.h"
#include "judges/Pattern.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

using namespace std::string_literals;

/// A document in UTF-8 with one clip called "Scène 1", and `declaration` before it.
std::string document(const std::string& declaration) {
    std::string text = declaration;
    text += "<a><clip name='Sc\u00E8ne 1'/></a>";
    return text;
}

std::string declared(const std::string& encoding) {
    return document("<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\n");
}

std::string encodedAs(const char* encoding, const std::string& text) {
    const icu::UnicodeString characters = utf16(text);
    std::string bytes(static_cast<std::size_t>(characters.length()) * 4 + 8, '\0');
    bytes.resize(static_cast<std::size_t>(characters.extract(
        0, characters.length(), bytes.data(), static_cast<std::uint32_t>(bytes.size()), encoding)));
    return bytes;
}

const std::string mark8 = "\xEF\xBB\xBF";
const std::string markLE = "\xFF\xFE";
const std::string markBE = "\xFE\xFF";

struct Row {
    std::string_view name;
    std::string data;
    std::string clipName = "Sc\u00E8ne 1";
};

class XMLEncoding : public testing::TestWithParam<Row> {};

TEST_P(XMLEncoding, IsRead) {
    const auto events = TimelineParser::parseXML(GetParam().data, 25);
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].clipName, GetParam().clipName);
}

INSTANTIATE_TEST_SUITE_P(
    UTF8, XMLEncoding,
    testing::Values(
        Row{"undeclared", document("")}, Row{"declared", declared("UTF-8")},
        Row{"lowerCase", declared("utf-8")}, Row{"withoutHyphen", declared("utf8")},
        Row{"noEncodingInDeclaration", document("<?xml version='1.0'?>")},
        Row{"apostrophes", document("<?xml version='1.0' encoding='UTF-8'?>")},
        Row{"blanksAroundEquals", document("<?xml\nversion = '1.0'\tencoding =\n'windows-1252' ?>"),
            "Sc\u00C3\u00A8ne 1"},
        Row{"mark", mark8 + document("")}, Row{"markDeclared", mark8 + declared("UTF-8")},
        Row{"markDeclaredOtherwise", mark8 + declared("windows-1252")},
        Row{"markDeclaredUTF16", mark8 + declared("UTF-16")},
        Row{"otherInstructionFirst", document("<?xml-stylesheet encoding='windows-1252'?>")}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    UTF16, XMLEncoding,
    testing::Values(
        Row{"littleEndianMark", markLE + encodedAs("UTF-16LE", document(""))},
        Row{"bigEndianMark", markBE + encodedAs("UTF-16BE", document(""))},
        Row{"littleEndianMarkDeclared", markLE + encodedAs("UTF-16LE", declared("UTF-16"))},
        Row{"bigEndianMarkDeclared", markBE + encodedAs("UTF-16BE", declared("UTF-16"))},
        Row{"littleEndianDeclared", encodedAs("UTF-16LE", declared("UTF-16"))},
        Row{"bigEndianDeclared", encodedAs("UTF-16BE", declared("UTF-16"))},
        Row{"littleEndianDeclaredByOrder", encodedAs("UTF-16LE", declared("UTF-16LE"))},
        Row{"littleEndianUndeclared", encodedAs("UTF-16LE", document(""))},
        Row{"bigEndianUndeclared", encodedAs("UTF-16BE", document(""))}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    FalseNames, XMLEncoding,
    testing::Values(
        Row{"utf8AsUTF16", declared("UTF-16")}, Row{"utf8AsUTF16LE", declared("UTF-16LE")},
        Row{"utf8AsUTF16BE", declared("utf-16be")}, Row{"utf8AsUTF32", declared("UTF-32")},
        Row{"utf8AsUCS2", declared("ISO-10646-UCS-2")}, Row{"utf8AsASCII", declared("US-ASCII")},
        Row{"utf8AsASCIIByAlias", declared("ascii")}, Row{"utf8AsEBCDIC", declared("ibm-037")},
        Row{"utf8AsEBCDICByAlias", declared("cp1047")}, Row{"unknown", declared("x-klingon")},
        Row{"unknownAndLong", declared(std::string(500, 'x'))},
        Row{"utf16AsUTF8", markLE + encodedAs("UTF-16LE", declared("UTF-8"))},
        Row{"utf16BigEndianAsUTF8", markBE + encodedAs("UTF-16BE", declared("UTF-8"))},
        Row{"utf16AsTheOtherOrder", markLE + encodedAs("UTF-16LE", declared("UTF-16BE"))},
        Row{"utf16AsASCII", markLE + encodedAs("UTF-16LE", declared("US-ASCII"))},
        Row{"utf16AsUnknown", markBE + encodedAs("UTF-16BE", declared("x-klingon"))},
        Row{"utf16WithoutMarkAsUTF8", encodedAs("UTF-16LE", declared("UTF-8"))},
        Row{"utf16BigEndianWithoutMarkAsLatin1", encodedAs("UTF-16BE", declared("ISO-8859-1"))}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    OtherNames, XMLEncoding,
    testing::Values(
        Row{"latin1", encodedAs("ISO-8859-1", declared("ISO-8859-1"))},
        Row{"latin1LowerCase", encodedAs("ISO-8859-1", declared("iso-8859-1"))},
        Row{"windows1252", encodedAs("windows-1252", declared("windows-1252"))},
        Row{"windows1252ByAlias", encodedAs("windows-1252", declared("cp1252"))},
        Row{"windows1252Quote",
            "<?xml version='1.0' encoding='windows-1252'?><clip name='\x93"
            "a\x94'/>",
            "\u201C"
            "a\u201D"},
        Row{"macintosh", encodedAs("macintosh", declared("macintosh"))},
        Row{"utf8AsWindows1252_AsDeclared", declared("windows-1252"), "Sc\u00C3\u00A8ne 1"},
        Row{"shiftJIS",
            "<?xml version='1.0' encoding='Shift_JIS'?><clip name='\x83V\x81[\x83\x93'/>",
            "\u30B7\u30FC\u30F3"},
        Row{"shiftJISWithASCIITrailBytes",
            "<?xml version='1.0' encoding='Shift_JIS'?><clip name='\x95\x5C'/>", "\u8868"},
        Row{"eucJP", "<?xml version='1.0' encoding='EUC-JP'?><clip name='\xA5\xB7'/>", "\u30B7"},
        Row{"gb18030", "<?xml version='1.0' encoding='GB18030'?><clip name='\x95\x32\x82\x36'/>",
            "\U00020000"},
        Row{"koi8", "<?xml version='1.0' encoding='KOI8-R'?><clip name='\xCB'/>", "\u043A"},
        Row{"bytesWithoutMeaning",
            "<?xml version='1.0' encoding='Shift_JIS'?><clip name='a\xFF\xFF"
            "b'/>",
            "a\uFFFD\uFFFD"
            "b"},
        Row{"asciiWithOtherBytes",
            "<?xml version='1.0' encoding='US-ASCII'?><clip name='Sc\xE8ne'/>", "Sc\uFFFDne"}),
    RowName());

TEST(XMLEncodings, ALongDocument_IsTranscodedWhole) {
    std::string text = "<?xml version='1.0' encoding='ISO-8859-1'?><a>";
    constexpr std::size_t count = 20'000;
    for (std::size_t i = 0; i < count; ++i) text += "<clip name='Sc\xE8ne \xFF'/>";
    const auto events = TimelineParser::parseXML(text + "</a>", 25);
    ASSERT_EQ(events.size(), count);
    for (const EventView& event : events) ASSERT_EQ(event.clipName, "Sc\u00E8ne \u00FF");
}

TEST(XMLEncodings, UndeclaredLatin1_GivesTheEventsBeforeTheFirstAccent) {
    const auto events =
        TimelineParser::parseXML("<a><clip/><clip name='Sc\xE8ne'/><clip/></a>", 25);
    EXPECT_EQ(events.size(), 1U);
}

TEST(XMLEncodings, UTF16CutWithinACharacter_GivesTheEventsBefore) {
    std::string data = markLE + encodedAs("UTF-16LE", "<a><clip/><clip/>");
    data += '<';
    EXPECT_EQ(TimelineParser::parseXML(data, 25).size(), 2U);
}

/// A false name costs nothing, whatever it means; and bytes that mean nothing in an encoding do not
/// break the texts.
TEST(XMLEncodings, EveryNameThatICUKnows_LosesNoEvent) {
    std::string everyByte;
    for (int byte = 0x80; byte < 0x100; ++byte) everyByte += static_cast<char>(byte);
    const std::int32_t count = ucnv_countAvailable();
    ASSERT_GT(count, 100);
    for (std::int32_t i = 0; i < count; ++i) {
        const std::string name = ucnv_getAvailableName(i);
        if (name.find(',') != std::string::npos) continue;  // no document can hold it
        const std::string text = "<?xml version='1.0' encoding='" + name + "'?><a><clip name='x'/>";
        const auto events = TimelineParser::parseXML(text + "<clip/></a>", 25);
        ASSERT_EQ(events.size(), 2U) << name;
        EXPECT_EQ(events[0].clipName, "x") << name;
        for (const auto& event : TimelineParser::parseXML(
                 text + everyByte + "<clip name='" + everyByte + "'/></a>", 25)) {
            EXPECT_EQ(validUTF8Prefix(event.clipName), event.clipName.size()) << name;
        }
    }
}

TEST(XMLEncodings, DataThatIsNoXML_YieldsNothing) {
    for (const auto& data :
         {""s, markLE, markBE, mark8, "\xFF"s, "<"s, "<\0"s, "\0<"s, "<?xml"s, "<?xml encoding"s,
          "<?xml encoding="s, "<?xml encoding='"s, "<?xml encoding='utf8"s, "\0\0\0\0"s}) {
        EXPECT_TRUE(TimelineParser::parseXML(data, 25).empty()) << data;
    }
}

}  // namespace
}  // namespace clipvane::test
