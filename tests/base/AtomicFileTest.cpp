// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/AtomicFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <vector>

#include "base/WriteAtomically.h"
#include "support/TemporaryFolder.h"
#include "support/WithoutPrivileges.h"

namespace clipvane::test {
namespace {

using Names = std::vector<std::string>;

Error errorOf(const Result<void>& result) {
    EXPECT_FALSE(result.has_value());
    return result ? Error{} : result.error();
}

TEST(AtomicFile, NewFile_HasTheContentAndTheUsualPermissions) {
    const TemporaryFolder folder;
    const mode_t earlier = ::umask(027);
    const auto written = writeFileAtomically(folder / "new", "text");
    ::umask(earlier);
    EXPECT_TRUE(written);
    EXPECT_EQ(contentOf(folder / "new"), "text");
    EXPECT_EQ(modeOf(folder / "new"), 0640U);
    EXPECT_EQ(folder.names(), Names{"new"});
}

TEST(AtomicFile, EmptyContent_MakesAnEmptyFile) {
    const TemporaryFolder folder;
    EXPECT_TRUE(writeFileAtomically(folder / "new", ""));
    EXPECT_EQ(contentOf(folder / "new"), "");
}

TEST(AtomicFile, SeveralWrites_FollowEachOther) {
    const TemporaryFolder folder;
    auto file = AtomicFile::create(folder / "new");
    ASSERT_TRUE(file);
    std::string expected;
    for (int i = 0; i < 1000; ++i) {
        const std::string piece = std::to_string(i) + '\n';
        ASSERT_TRUE(file->write(piece));
        expected += piece;
    }
    ASSERT_TRUE(file->commit());
    EXPECT_EQ(contentOf(folder / "new"), expected);
}

TEST(AtomicFile, ReplacedFile_KeepsItsPermissions) {
    for (const unsigned mode : {0600U, 0640U, 0666U, 0755U, 0444U}) {
        const TemporaryFolder folder;
        writeContent(folder / "file", "a longer old text");
        ASSERT_EQ(::chmod((folder / "file").c_str(), mode), 0);
        EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
        EXPECT_EQ(contentOf(folder / "file"), "new");
        EXPECT_EQ(modeOf(folder / "file"), mode);
        EXPECT_EQ(folder.names(), Names{"file"});
    }
}

/// A file of another user or group, which only root can make.
class ForeignFile : public testing::Test {
  protected:
    void SetUp() override {
        if (::geteuid() != 0) GTEST_SKIP() << "only root can make files of other users";
    }

    void makeFile(uid_t user, gid_t group, mode_t mode) const {
        writeContent(folder / "file", "old");
        ASSERT_EQ(::chown((folder / "file").c_str(), user, group), 0);
        ASSERT_EQ(::chmod((folder / "file").c_str(), mode), 0);
    }

    const TemporaryFolder folder;
};

TEST_F(ForeignFile, Group_IsKept) {
    makeFile(0, 65533, 0640);
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    struct stat status {};
    ASSERT_EQ(::stat((folder / "file").c_str(), &status), 0);
    EXPECT_EQ(status.st_gid, 65533U);
    EXPECT_EQ(modeOf(folder / "file"), 0640U);
}

TEST_F(ForeignFile, GroupThatTheUserIsNotIn_IsLeftToEverybodysRights) {
    std::filesystem::permissions(folder.path(), std::filesystem::perms{0777});
    makeFile(0, 65533, 0664);
    const WithoutPrivileges ordinaryUser;
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(modeOf(folder / "file"), 0644U);
}

TEST_F(ForeignFile, RightsThatGoWithTheOwner_DoNotPassToANewOne) {
    makeFile(65533, 65533, 06755);
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(modeOf(folder / "file"), 0755U);
    makeFile(0, 0, 06755);
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(modeOf(folder / "file"), 06755U);
}

TEST(AtomicFile, ReadOnlyFileInAWritableFolder_IsReplaced) {
    const TemporaryFolder folder;
    std::filesystem::permissions(folder.path(), std::filesystem::perms{0777});
    const WithoutPrivileges ordinaryUser;
    ASSERT_TRUE(writeFileAtomically(folder / "file", "old"));
    ASSERT_EQ(::chmod((folder / "file").c_str(), 0444), 0);
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(modeOf(folder / "file"), 0444U);
}

TEST(AtomicFile, HardLink_OtherNameKeepsTheOldContent) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    std::filesystem::create_hard_link(folder / "file", folder / "other");
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "other"), "old");
}

TEST(AtomicFile, BareName_IsWrittenIntoTheCurrentFolder) {
    const TemporaryFolder folder;
    const auto earlier = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    const auto created = writeFileAtomically("bare", "one");
    const auto replaced = writeFileAtomically("bare", "two");
    std::filesystem::current_path(earlier);
    EXPECT_TRUE(created);
    EXPECT_TRUE(replaced);
    EXPECT_EQ(contentOf(folder / "bare"), "two");
    EXPECT_EQ(folder.names(), Names{"bare"});
}

TEST(AtomicFile, NameOf255Bytes_IsWritten) {
    const TemporaryFolder folder;
    const std::string name(255, 'n');
    EXPECT_TRUE(writeFileAtomically(folder / name, "one"));
    EXPECT_TRUE(writeFileAtomically(folder / name, "two"));
    EXPECT_EQ(contentOf(folder / name), "two");
    EXPECT_EQ(folder.names(), Names{name});
    EXPECT_EQ(errorOf(writeFileAtomically(folder / (name + 'n'), "one")).code, ENAMETOOLONG);
}

TEST(AtomicFile, Uncommitted_LeavesTheOldContentAndNothingElse) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    for (const char* name : {"file", "new"}) {
        auto file = AtomicFile::create(folder / name);
        ASSERT_TRUE(file);
        ASSERT_TRUE(file->write("half"));
        EXPECT_EQ(contentOf(folder / "file"), "old");
        EXPECT_FALSE(std::filesystem::exists(folder / "new"));
    }
    EXPECT_EQ(contentOf(folder / "file"), "old");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(AtomicFile, Moved_WritesOnceAndFromTheNewObject) {
    const TemporaryFolder folder;
    auto created = AtomicFile::create(folder / "new");
    ASSERT_TRUE(created);
    ASSERT_TRUE(created->write("one "));
    {
        AtomicFile moved = std::move(*created);
        ASSERT_TRUE(moved.write("two"));
        ASSERT_TRUE(moved.commit());
    }
    EXPECT_EQ(contentOf(folder / "new"), "one two");
    EXPECT_EQ(folder.names(), Names{"new"});
}

TEST(AtomicFile, FileCreatedMeanwhile_IsReplacedAndKeepsItsPermissions) {
    const TemporaryFolder folder;
    auto file = AtomicFile::create(folder / "file");
    ASSERT_TRUE(file);
    ASSERT_TRUE(file->write("ours"));
    writeContent(folder / "file", "somebody else's");
    ASSERT_EQ(::chmod((folder / "file").c_str(), 0604), 0);
    EXPECT_TRUE(file->commit());
    EXPECT_EQ(contentOf(folder / "file"), "ours");
    EXPECT_EQ(modeOf(folder / "file"), 0604U);
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(AtomicFile, FileDeletedMeanwhile_IsCreated) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    auto file = AtomicFile::create(folder / "file");
    ASSERT_TRUE(file);
    ASSERT_TRUE(file->write("new"));
    std::filesystem::remove(folder / "file");
    EXPECT_TRUE(file->commit());
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(AtomicFile, FIFOPutThereMeanwhile_StaysAndTheCommitFails) {
    const TemporaryFolder folder;
    writeContent(folder / "old", "old");
    for (const char* name : {"old", "new"}) {
        auto file = AtomicFile::create(folder / name);
        ASSERT_TRUE(file);
        std::filesystem::remove(folder / name);
        ASSERT_EQ(::mkfifo((folder / name).c_str(), 0600), 0);
        EXPECT_EQ(errorOf(file->commit()).description, "The file \"" + std::string(name) +
                                                           "\" could not be written: Not a "
                                                           "regular file.");
        EXPECT_TRUE(std::filesystem::is_fifo(folder / name));
    }
    EXPECT_EQ(folder.names(), (Names{"new", "old"}));
}

TEST(AtomicFile, FolderRemovedMeanwhile_TheCommitFails) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "inner");
    auto file = AtomicFile::create(folder / "inner/file");
    ASSERT_TRUE(file);
    ASSERT_TRUE(file->write("new"));
    std::filesystem::remove_all(folder / "inner");
    EXPECT_EQ(errorOf(file->commit()),
              (Error{"POSIX", ENOENT,
                     "The file \"file\" could not be written: No such file or directory."}));
}

struct Refused {
    std::string path;
    Error error;
};

TEST(AtomicFile, PlaceThatCannotBeWritten_GivesTheReasonAndStaysAsItWas) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    std::filesystem::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    const Names before = folder.names();

    for (const auto& [path, error] : std::vector<Refused>{
             {"folder",
              {"POSIX", EISDIR, "The file \"folder\" could not be written: Is a directory."}},
             {"folder/",
              {"POSIX", EISDIR, "The file \"folder\" could not be written: Is a directory."}},
             {"fifo",
              {"POSIX", EINVAL, "The file \"fifo\" could not be written: Not a regular file."}},
             {"missing/new",
              {"POSIX", ENOENT,
               "The file \"new\" could not be written: No such file or directory."}},
             {"file/new",
              {"POSIX", ENOTDIR, "The file \"new\" could not be written: Not a directory."}},
             {"new/",
              {"POSIX", ENOENT,
               "The file \"new\" could not be written: No such file or directory."}},
         }) {
        EXPECT_EQ(errorOf(writeFileAtomically(folder / path, "text")), error);
        EXPECT_EQ(folder.names(), before);
    }
    EXPECT_TRUE(std::filesystem::is_fifo(folder / "fifo"));
    EXPECT_EQ(contentOf(folder / "file"), "old");
}

TEST(AtomicFile, EmptyPath_IsAnError) {
    EXPECT_EQ(errorOf(writeFileAtomically("", "text")).code, ENOENT);
}

TEST(AtomicFile, UnwritableFolder_GivesTheReasonAndLeavesNothing) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    std::filesystem::permissions(folder.path(), std::filesystem::perms{0555});
    const WithoutPrivileges ordinaryUser;
    for (const char* name : {"file", "new"}) {
        EXPECT_EQ(errorOf(writeFileAtomically(folder / name, "text")),
                  (Error{"POSIX", EACCES,
                         "The file \"" + std::string(name) +
                             "\" could not be written: Permission denied."}));
    }
    EXPECT_EQ(contentOf(folder / "file"), "old");
    EXPECT_EQ(folder.names(), Names{"file"});
}

}  // namespace
}  // namespace clipvane::test
