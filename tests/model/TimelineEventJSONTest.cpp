// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/TimelineEventJSON.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "base/UTF8.h"
#include "model/FullEvent.h"
#include "support/AppendUTF8.h"
#include "support/LongTest.h"

namespace clipvane::test {
namespace {

using Members = std::vector<std::pair<std::string, std::string>>;

/// The keys and the literals of the sample's record.
Members sampleMembers() {
    return {
        {"id", R"("01234567-89AB-CDEF-FEDC-BA9876543210")"},
        {"eventNumber", R"("007")"},
        {"clipName", R"("Café Noir")"},
        {"reelID", R"("A001_C003")"},
        {"sourceIn", R"("01:00:00:00")"},
        {"sourceOut", R"("01:00:04:00")"},
        {"recordIn", R"("02:00:00:00")"},
        {"recordOut", R"("02:00:04:00")"},
        {"format", R"("EDL")"},
        {"track", R"("V")"},
        {"comments", R"("too long")"},
        {"highlighted", "true"},
        {"rawText", R"("007  A001_C003 V C\n* FROM CLIP NAME: Café Noir")"},
    };
}

std::string object(const Members& members) {
    std::string text;
    for (const auto& [key, literal] : members) {
        text += text.empty() ? '{' : ',';
        text += '"' + key + "\":" + literal;
    }
    return text + '}';
}

void expectFailure(std::string_view json) {
    const auto event = decodeJSON(json);
    ASSERT_FALSE(event) << json;
    EXPECT_EQ(event.error().domain, "JSON");
    EXPECT_FALSE(event.error().description.empty());
    EXPECT_EQ(validUTF8Prefix(event.error().description), event.error().description.size());
}

TEST(EncodeJSON, WritesAllKeysInTheOrderOfTheFields) {
    EXPECT_EQ(encodeJSON(fullEvent()), object(sampleMembers()));
}

TEST(EncodeJSON, FreshEvent_WritesEmptyTextsRatherThanNothing) {
    EXPECT_EQ(encodeJSON(TimelineEvent()),
              R"({"id":"00000000-0000-0000-0000-000000000000","eventNumber":"","clipName":"",)"
              R"("reelID":"","sourceIn":"","sourceOut":"","recordIn":"","recordOut":"",)"
              R"("format":"","track":"","comments":"","highlighted":false,"rawText":""})");
}

TEST(EncodeJSON, SpecialCharacters_AreEscaped) {
    TimelineEvent event;
    event.comments.assign("\"\\/\b\f\n\r\t\0\x1F\x7F", 11);
    event.comments += "\u2028😀";
    EXPECT_NE(encodeJSON(event).find(R"("comments":"\"\\/\b\f\n\r\t\u0000\u001f)"
                                     "\x7F\u2028😀\""),
              std::string::npos);
}

TEST(EncodeJSON, InvalidUTF8_KeepsTheRest) {
    TimelineEvent event = fullEvent();
    event.reelID =
        "A\xFF"
        "B";
    const auto decoded = decodeJSON(encodeJSON(event));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->reelID, "A\uFFFDB");
    EXPECT_EQ(decoded->rawText, event.rawText);
}

TEST(DecodeJSON, ReadsWhatIsWritten) {
    const auto event = decodeJSON(encodeJSON(fullEvent()));
    ASSERT_TRUE(event);
    EXPECT_EQ(*event, fullEvent());
}

TEST(DecodeJSON, OtherOrderAndBlanks_AreRead) {
    Members members = sampleMembers();
    std::swap(members.front(), members.back());
    std::string json = object(members);
    for (std::size_t at = 0; (at = json.find("\":", at)) != std::string::npos; at += 5) {
        json.replace(at, 2, "\" :\n\t");
    }
    const auto event = decodeJSON(json);
    ASSERT_TRUE(event);
    EXPECT_EQ(*event, fullEvent());
}

TEST(DecodeJSON, IdentifierInLowerCase_IsRead) {
    Members members = sampleMembers();
    members[0].second = R"("01234567-89ab-cdef-fedc-ba9876543210")";
    const auto event = decodeJSON(object(members));
    ASSERT_TRUE(event);
    EXPECT_EQ(*event, fullEvent());
    EXPECT_EQ(encodeJSON(*event), object(sampleMembers()));
}

TEST(DecodeJSON, ExtraKey_IsIgnoredAndTheIdentifierKept) {
    Members members = sampleMembers();
    members.insert(members.begin(), {"version", R"({"id":[1,2,null]})"});
    members.emplace_back("ID", R"("00000000-0000-0000-0000-000000000000")");
    const auto event = decodeJSON(object(members));
    ASSERT_TRUE(event);
    EXPECT_EQ(*event, fullEvent());
}

TEST(DecodeJSON, AnyMissingKey_Fails) {
    for (std::size_t i = 0; i < sampleMembers().size(); ++i) {
        Members members = sampleMembers();
        const std::string key = members[i].first;
        members.erase(members.begin() + static_cast<std::ptrdiff_t>(i));
        expectFailure(object(members));
        EXPECT_NE(decodeJSON(object(members)).error().description.find(key), std::string::npos)
            << "the reason does not name " << key;
    }
}

TEST(DecodeJSON, AnyKeyInAnotherCase_Fails) {
    for (std::size_t i = 0; i < sampleMembers().size(); ++i) {
        Members members = sampleMembers();
        members[i].first.front() = static_cast<char>(members[i].first.front() - 'a' + 'A');
        expectFailure(object(members));
    }
}

TEST(DecodeJSON, AnyValueOfAWrongType_Fails) {
    for (std::size_t i = 0; i < sampleMembers().size(); ++i) {
        const bool isFlag = sampleMembers()[i].first == "highlighted";
        for (const std::string literal :
             {"null", "1", "0", "2.5", "[]", "{}", R"(["x"])", isFlag ? R"("true")" : "true"}) {
            Members members = sampleMembers();
            members[i].second = literal;
            expectFailure(object(members));
        }
    }
}

TEST(DecodeJSON, InvalidIdentifier_FailsWithAReason) {
    for (const char* id :
         {"", "x", "01234567-89AB-CDEF-FEDC-BA987654321", "0123456789ABCDEFFEDCBA9876543210",
          "{01234567-89AB-CDEF-FEDC-BA9876543210}"}) {
        Members members = sampleMembers();
        members[0].second = '"' + std::string(id) + '"';
        const auto event = decodeJSON(object(members));
        ASSERT_FALSE(event);
        EXPECT_EQ(event.error(), (Error{"JSON", 0, "The value of \"id\" is not a UUID."}));
    }
}

TEST(DecodeJSON, OtherThanOneObject_Fails) {
    const std::string json = object(sampleMembers());
    for (const std::string& text :
         {std::string(), std::string(" "), std::string("null"), std::string("[]"),
          std::string("{}"), std::string("\"x\""), '[' + json + ']', json + json, json + 'x',
          json.substr(1), std::string("{'id':1}"), std::string("\xFF"), json + '\xFF',
          std::string("[\"\xE2\x82"), std::string("nul"), std::string(100'000, '[')}) {
        expectFailure(text);
    }
}

TEST(DecodeJSON, EveryTruncation_Fails) {
    const std::string json = object(sampleMembers());
    for (std::size_t size = 0; size < json.size(); ++size) {
        ASSERT_FALSE(decodeJSON(std::string_view(json).substr(0, size))) << size;
    }
}

TEST(JSON, RandomEvents_SurviveTheRoundTripByteForByte) {
    CLIPVANE_LONG_TEST();
    std::mt19937_64 engine(3);
    const auto drawText = [&] {
        static constexpr char32_t favourites[]{0,      '\n',   '\r',   '"',     '\\',
                                               0x1F,   0x7F,   0x85,   0xA0,    0x301,
                                               0x2028, 0xFEFF, 0xFFFF, 0x1F600, 0x10FFFF};
        std::string text;
        for (auto left = engine() % 12; left > 0; --left) {
            appendUTF8(text, engine() % 2 == 0 ? favourites[engine() % std::size(favourites)]
                                               : static_cast<char32_t>(engine() % 0x110000));
        }
        return text;
    };
    UUIDGenerator generator;
    for (int i = 0; i < 5'000; ++i) {
        TimelineEvent event{generator.next(), drawText(),        drawText(), drawText(), drawText(),
                            drawText(),       drawText(),        drawText(), drawText(), drawText(),
                            drawText(),       engine() % 2 == 0, drawText()};
        const std::string json = encodeJSON(event);
        const auto decoded = decodeJSON(json);
        ASSERT_TRUE(decoded) << json;
        ASSERT_EQ(*decoded, event);
        ASSERT_EQ(decoded->rawText, event.rawText);
        ASSERT_EQ(encodeJSON(*decoded), json);
    }
}

}  // namespace
}  // namespace clipvane::test
