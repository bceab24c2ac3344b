// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/Error.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <vector>

#include "support/RowName.h"

namespace clipvane::test {
namespace {

TEST(FileError, NamesTheFileAndTheSystemsReason) {
    EXPECT_EQ(
        fileError("read", "/media/project/cut.edl", EACCES),
        (Error{"POSIX", EACCES, "The file \"cut.edl\" could not be read: Permission denied."}));
    EXPECT_EQ(fileError("written", "report.csv", ENOSPC),
              (Error{"POSIX", ENOSPC,
                     "The file \"report.csv\" could not be written: No space left on device."}));
}

TEST(Error, AnyDifference_MakesErrorsUnequal) {
    const Error error{"Clipvane", 10, "Text."};
    EXPECT_EQ(error, (Error{"Clipvane", 10, "Text."}));
    EXPECT_NE(error, (Error{"POSIX", 10, "Text."}));
    EXPECT_NE(error, (Error{"Clipvane", 11, "Text."}));
    EXPECT_NE(error, (Error{"Clipvane", 10, "Other."}));
}

struct NameRow {
    const char* name;
    const char* path;
    std::string_view expected;
};

class DisplayName : public testing::TestWithParam<NameRow> {};

TEST_P(DisplayName, Row) {
    EXPECT_EQ(displayName(GetParam().path), GetParam().expected);
}

const std::vector<NameRow> displayNames{
    {"Absolute", "/media/project/cut.edl", "cut.edl"},
    {"Relative", "cut.edl", "cut.edl"},
    {"Hidden", "/media/.edl", ".edl"},
    {"Unicode", "/media/Schnitt é 😀.edl", "Schnitt é 😀.edl"},
    {"Latin1", "/media/caf\xE9.edl", "caf\uFFFD.edl"},
    {"MarkupAndQuotes", "/media/<b>\"cut\".edl", "<b>\"cut\".edl"},
    {"Folder", "/media/project/", "project"},
    {"FolderWithTwoSlashes", "/media/project//", "project"},
    {"Root", "/", "/"},
    {"Empty", "", ""},
};
INSTANTIATE_TEST_SUITE_P(Paths, DisplayName, testing::ValuesIn(displayNames), RowName());

}  // namespace
}  // namespace clipvane::test
