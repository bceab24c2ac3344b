// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/GrowingText.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace clipvane::test {
namespace {

TEST(GrowingText, New_IsEmpty) {
    GrowingText text;
    EXPECT_EQ(text.size(), 0U);
    EXPECT_EQ(text.view(), "");
    EXPECT_EQ(text.take(), "");
}

TEST(GrowingText, PiecesOfEverySize_StandInOrder) {
    GrowingText text;
    std::string expected;
    for (std::size_t size = 0; size < 300; ++size) {
        const std::string piece(size, static_cast<char>('a' + size % 26));
        text.put(piece);
        text.put(';');
        expected += piece + ';';
        ASSERT_EQ(text.view(), expected);
    }
    EXPECT_EQ(text.size(), expected.size());
}

TEST(GrowingText, Numbers_AreDecimal) {
    GrowingText text;
    for (const std::uint64_t number : {std::uint64_t{0}, std::uint64_t{9}, std::uint64_t{10},
                                       std::numeric_limits<std::uint64_t>::max()}) {
        text.putNumber(number);
        text.put(' ');
    }
    EXPECT_EQ(text.view(), "0 9 10 18446744073709551615 ");
}

TEST(GrowingText, RoomThatIsPartlyUsed_CountsAsFarAsItIs) {
    GrowingText text;
    text.put("a");
    char* const to = text.room(1000);
    to[0] = 'b';
    text.endAt(to + 1);
    text.put("c");
    EXPECT_EQ(text.view(), "abc");
}

TEST(GrowingText, ClearedOrTaken_BeginsAgain) {
    GrowingText text;
    text.put("first");
    text.clear();
    EXPECT_EQ(text.view(), "");
    text.put("second, and longer than a short string");
    EXPECT_EQ(text.take(), "second, and longer than a short string");
    EXPECT_EQ(text.view(), "");
    text.put("third");
    EXPECT_EQ(text.take(), "third");
}

}  // namespace
}  // namespace clipvane::test
