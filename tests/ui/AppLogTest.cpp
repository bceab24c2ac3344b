// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/AppLog.h"

#include <gtest/gtest.h>

namespace clipvane {
namespace {

TEST(AppLog, ItsPlace) {
    EXPECT_EQ(AppLog::url(), "/tmp/clipvane-native.log");
}

}  // namespace
}  // namespace clipvane
