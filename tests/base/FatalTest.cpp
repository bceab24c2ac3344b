// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/Fatal.h>

#include <gtest/gtest.h>

#include <csignal>

#include "support/ThrowingFatal.h"

namespace clipvane::test {
namespace {

TEST(FatalDeathTest, WritesTheReasonAndAborts) {
    EXPECT_EXIT(fatal("the clock struck thirteen"), testing::KilledBySignal(SIGABRT),
                "clipvane: the clock struck thirteen\n");
}

TEST(FatalDeathTest, ReasonWithoutTerminator_IsWrittenWholeAndNoFurther) {
    const std::string_view reason = std::string_view("one two three").substr(0, 7);
    EXPECT_EXIT(fatal(reason), testing::KilledBySignal(SIGABRT), "clipvane: one two\n");
}

TEST(FatalDeathTest, HandlerThatReturns_DoesNotSaveTheProgram) {
    EXPECT_EXIT(
        {
            setFatalHandler([](std::string_view) {});
            fatal("still here");
        },
        testing::KilledBySignal(SIGABRT), "clipvane: still here");
}

TEST(Fatal, Handler_GetsTheReason) {
    const ThrowingFatal throwing;
    try {
        fatal("for the handler");
    } catch (const ThrowingFatal::Reason& reason) {
        EXPECT_EQ(reason.text, "for the handler");
        return;
    }
}

TEST(SetFatalHandler, GivesTheEarlierHandler) {
    const FatalHandler handler = [](std::string_view) { throw 1; };
    EXPECT_EQ(setFatalHandler(handler), nullptr);
    EXPECT_EQ(setFatalHandler(nullptr), handler);
    EXPECT_EQ(setFatalHandler(nullptr), nullptr);
}

}  // namespace
}  // namespace clipvane::test
