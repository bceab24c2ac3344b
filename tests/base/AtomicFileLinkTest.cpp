// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

#include "base/WriteAtomically.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

using Names = std::vector<std::string>;

/// A folder "files" for the targets and one "links" for what leads to them.
class AtomicFileLink : public testing::Test {
  protected:
    AtomicFileLink() {
        std::filesystem::create_directory(folder / "files");
        std::filesystem::create_directory(folder / "links");
    }

    void link(std::string_view name, const std::filesystem::path& target) const {
        std::filesystem::create_symlink(target, folder / name);
    }

    void expectWritten(std::string_view through, std::string_view target) const {
        const auto links = std::filesystem::read_symlink(folder / through);
        ASSERT_TRUE(writeFileAtomically(folder / through, "new"));
        EXPECT_EQ(contentOf(folder / target), "new");
        EXPECT_FALSE(std::filesystem::is_symlink(folder / target));
        EXPECT_EQ(std::filesystem::read_symlink(folder / through), links);
    }

    TemporaryFolder folder;
};

TEST_F(AtomicFileLink, Absolute_TargetIsReplacedAndTheLinkStays) {
    writeContent(folder / "files/file", "old");
    link("links/link", folder / "files/file");
    expectWritten("links/link", "files/file");
}

TEST_F(AtomicFileLink, Relative_IsTakenFromTheLinksFolder) {
    writeContent(folder / "files/file", "old");
    link("links/link", "../files/file");
    expectWritten("links/link", "files/file");
}

TEST_F(AtomicFileLink, RelativeFromABareName_IsFollowed) {
    writeContent(folder / "files/file", "old");
    link("link", "files/file");
    const auto earlier = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    const auto written = writeFileAtomically("link", "new");
    std::filesystem::current_path(earlier);
    EXPECT_TRUE(written);
    EXPECT_EQ(contentOf(folder / "files/file"), "new");
}

TEST_F(AtomicFileLink, Dangling_TargetIsCreated) {
    link("links/link", "../files/new");
    expectWritten("links/link", "files/new");
}

TEST_F(AtomicFileLink, DanglingIntoAMissingFolder_NamesTheChosenFile) {
    link("links/link", "../nowhere/new");
    const auto written = writeFileAtomically(folder / "links/link", "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error(),
              (Error{"POSIX", ENOENT,
                     "The file \"link\" could not be written: No such file or directory."}));
}

TEST_F(AtomicFileLink, ToAFolder_IsRefused) {
    link("links/link", "../files");
    const auto written = writeFileAtomically(folder / "links/link", "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error(),
              (Error{"POSIX", EISDIR, "The file \"link\" could not be written: Is a directory."}));
}

TEST_F(AtomicFileLink, ThroughALinkedFolder_IsFollowed) {
    link("links/folder", "../files");
    ASSERT_TRUE(writeFileAtomically(folder / "links/folder/new", "new"));
    EXPECT_EQ(contentOf(folder / "files/new"), "new");
}

TEST_F(AtomicFileLink, ChainOf40_IsFollowedAndAnyLongerOneIsNot) {
    writeContent(folder / "files/file", "old");
    link("links/0", "../files/file");
    for (int i = 1; i <= 40; ++i) link("links/" + std::to_string(i), std::to_string(i - 1));
    expectWritten("links/39", "files/file");
    const auto written = writeFileAtomically(folder / "links/40", "newer");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().code, ELOOP);
    EXPECT_EQ(contentOf(folder / "files/file"), "new");
}

TEST_F(AtomicFileLink, Loop_IsAnError) {
    link("links/a", "b");
    link("links/b", "a");
    link("links/self", "self");
    for (const char* name : {"a", "self"}) {
        const auto written = writeFileAtomically(folder / (std::string("links/") + name), "new");
        ASSERT_FALSE(written);
        EXPECT_EQ(written.error(),
                  (Error{"POSIX", ELOOP,
                         "The file \"" + std::string(name) +
                             "\" could not be written: Too many levels of symbolic links."}));
    }
    EXPECT_EQ(folder.names(), (Names{"files", "links"}));
}

TEST_F(AtomicFileLink, PutThereMeanwhile_IsNotReplaced) {
    writeContent(folder / "files/file", "old");
    auto file = AtomicFile::create(folder / "files/new");
    ASSERT_TRUE(file);
    link("files/new", "file");
    EXPECT_FALSE(file->commit());
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "files/new"));
    EXPECT_EQ(contentOf(folder / "files/file"), "old");
}

}  // namespace
}  // namespace clipvane::test
