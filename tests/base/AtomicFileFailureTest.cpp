// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <atomic>
#include <cerrno>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "base/File.h"
#include "base/SystemCalls.h"
#include "base/WriteAtomically.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

using Names = std::vector<std::string>;

struct Step {
    const char* name;
    SystemCall call;
    int error;
};

/// Writing fails at one step: that is told, what was there stays, and nothing is left.
void expectFailureIsReported(const Step& step, bool isReplaced) {
    const TemporaryFolder folder;
    if (isReplaced) writeContent(folder / "file", "old");
    const Refusal refusal(step.call, step.error);
    const auto written = writeFileAtomically(folder / "file", "new");
    ASSERT_FALSE(written) << step.name;
    EXPECT_EQ(written.error(), fileError("written", "file", step.error));
    if (isReplaced) {
        EXPECT_EQ(contentOf(folder / "file"), "old");
        EXPECT_EQ(folder.names(), Names{"file"});
    } else {
        EXPECT_EQ(folder.names(), Names{});
    }
}

constexpr Step writing{"Write", SystemCall::write, ENOSPC};
constexpr Step syncing{"Sync", SystemCall::fsync, EIO};
constexpr Step closing{"Close", SystemCall::close, EDQUOT};
constexpr Step renaming{"Rename", SystemCall::rename, EACCES};

TEST(AtomicFile, AnyStepOfReplacingFails_TheOldContentStaysAndNothingIsLeft) {
    for (const Step& step : {writing, syncing, closing, renaming}) {
        expectFailureIsReported(step, true);
    }
}

TEST(AtomicFile, AnyStepOfCreatingFails_NothingIsLeft) {
    for (const Step& step : {writing, syncing}) {
        expectFailureIsReported(step, false);
    }
}

TEST(AtomicFile, AnyStepWithoutNamelessFilesFails_TheOldContentStaysAndNothingIsLeft) {
    const Refusal noNamelessFiles(SystemCall::openWithoutName, EOPNOTSUPP);
    for (const Step& step : {writing, syncing, closing, renaming}) {
        expectFailureIsReported(step, true);
        expectFailureIsReported(step, false);
    }
}

TEST(AtomicFile, WithoutNamelessFiles_WritesAllTheSame) {
    const Refusal noNamelessFiles(SystemCall::openWithoutName, EISDIR);
    const TemporaryFolder folder;
    EXPECT_TRUE(writeFileAtomically(folder / "file", "one"));
    EXPECT_EQ(contentOf(folder / "file"), "one");
    std::filesystem::permissions(folder / "file", std::filesystem::perms{0400});
    EXPECT_TRUE(writeFileAtomically(folder / "file", "two"));
    EXPECT_EQ(contentOf(folder / "file"), "two");
    EXPECT_EQ(modeOf(folder / "file"), 0400U);
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(noNamelessFiles.count(), 2);
}

TEST(AtomicFile, WithoutNamelessFiles_UncommittedOneVanishesAndIsNeverMoreReadable) {
    const Refusal noNamelessFiles(SystemCall::openWithoutName, EOPNOTSUPP);
    const TemporaryFolder folder;
    writeContent(folder / "file", "secret");
    std::filesystem::permissions(folder / "file", std::filesystem::perms{0600});
    {
        const auto file = AtomicFile::create(folder / "file");
        ASSERT_TRUE(file);
        const Names names = folder.names();
        ASSERT_EQ(names.size(), 2U);
        EXPECT_TRUE(names[0].starts_with(".clipvane-")) << names[0];
        EXPECT_EQ(modeOf(folder / names[0]) & 077U, 0U);
    }
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(AtomicFile, WithoutProc_WritesAllTheSame) {
    const Refusal noProc(SystemCall::access, ENOENT);
    const Refusal noLinks(SystemCall::linkat, ENOENT);
    const TemporaryFolder folder;
    EXPECT_TRUE(writeFileAtomically(folder / "file", "one"));
    EXPECT_TRUE(writeFileAtomically(folder / "file", "two"));
    EXPECT_EQ(contentOf(folder / "file"), "two");
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(noProc.count(), 2);
}

TEST(AtomicFile, NoTemporaryCanBeOpened_GivesTheReason) {
    const Refusal noNamelessFiles(SystemCall::openWithoutName, EOPNOTSUPP);
    const Refusal noFiles(SystemCall::open, EROFS);
    const TemporaryFolder folder;
    const auto file = AtomicFile::create(folder / "file");
    ASSERT_FALSE(file);
    EXPECT_EQ(file.error(), fileError("written", "file", EROFS));
}

TEST(AtomicFile, PermissionsCannotBeSet_WritesAllTheSame) {
    const Refusal noPermissions(SystemCall::fchmod, EPERM);
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(noPermissions.count(), 1);
}

TEST(AtomicFile, InterruptedCalls_AreMadeAgain) {
    const Refusal look(SystemCall::lstat, EINTR, 2);
    const Refusal open(SystemCall::openWithoutName, EINTR, 2);
    const Refusal access(SystemCall::access, EINTR, 2);
    const Refusal write(SystemCall::write, EINTR, 3);
    const Refusal mode(SystemCall::fchmod, EINTR, 2);
    const Refusal sync(SystemCall::fsync, EINTR, 2);
    const Refusal link(SystemCall::linkat, EINTR, 2);
    const Refusal close(SystemCall::close, EINTR, 1);
    const Refusal rename(SystemCall::rename, EINTR, 2);
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(look.count() + open.count() + access.count() + write.count() + mode.count() +
                  sync.count() + link.count() + close.count() + rename.count(),
              18);
}

TEST(AtomicFile, InterruptedRemovalOfWhatWasWritten_IsMadeAgain) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    const Refusal rename(SystemCall::rename, EACCES);
    const Refusal remove(SystemCall::unlink, EINTR, 3);
    EXPECT_FALSE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(remove.count(), 3);
}

TEST(AtomicFile, CreatedBetweenCheckAndLink_IsReplaced) {
    const TemporaryFolder folder;
    const Interruption meanwhile(SystemCall::linkat,
                                 [&] { writeContent(folder / "file", "somebody else's"); });
    EXPECT_TRUE(writeFileAtomically(folder / "file", "ours"));
    EXPECT_EQ(contentOf(folder / "file"), "ours");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(AtomicFile, FIFOPutThereBetweenCheckAndLink_IsNotReplaced) {
    const TemporaryFolder folder;
    const Interruption meanwhile(SystemCall::linkat,
                                 [&] { ::mkfifo((folder / "file").c_str(), 0600); });
    const auto written = writeFileAtomically(folder / "file", "ours");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().description,
              "The file \"file\" could not be written: Not a regular file.");
    EXPECT_TRUE(std::filesystem::is_fifo(folder / "file"));
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(AtomicFile, FileCreatedBetweenCheckAndLink_KeepsItsPermissions) {
    const TemporaryFolder folder;
    const Interruption meanwhile(SystemCall::linkat, [&] {
        writeContent(folder / "file", "somebody else's");
        ::chmod((folder / "file").c_str(), 0600);
    });
    EXPECT_TRUE(writeFileAtomically(folder / "file", "ours"));
    EXPECT_EQ(contentOf(folder / "file"), "ours");
    EXPECT_EQ(modeOf(folder / "file"), 0600U);
}

TEST(AtomicFile, PlaceThatIsTakenAgainAndAgain_IsGivenUp) {
    const TemporaryFolder folder;
    const Refusal taken(SystemCall::linkat, EEXIST);
    const auto written = writeFileAtomically(folder / "file", "ours");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error(), fileError("written", "file", EEXIST));
    EXPECT_EQ(folder.names(), Names{});
}

TEST(AtomicFile, WithoutHardLinks_WritesAllTheSame) {
    for (const int error : {EPERM, EOPNOTSUPP, EACCES, EXDEV}) {
        const Refusal noLinks(SystemCall::linkat, error);
        const TemporaryFolder folder;
        const std::string text(200'000, 'x');
        const ShortWrites writes(70'000);
        ASSERT_TRUE(writeFileAtomically(folder / "file", "one" + text));
        EXPECT_EQ(contentOf(folder / "file"), "one" + text);
        std::filesystem::permissions(folder / "file", std::filesystem::perms{0400});
        ASSERT_TRUE(writeFileAtomically(folder / "file", "two" + text));
        EXPECT_EQ(contentOf(folder / "file"), "two" + text);
        EXPECT_EQ(modeOf(folder / "file"), 0400U);
        EXPECT_EQ(folder.names(), Names{"file"});
        EXPECT_EQ(noLinks.count(), 2);
    }
}

TEST(AtomicFile, WithoutHardLinks_AFailureOnTheOtherWayIsReported) {
    const Refusal noLinks(SystemCall::linkat, EPERM);
    for (const auto& [call, spared] :
         {std::pair{SystemCall::open, 0}, std::pair{SystemCall::fstat, 0},
          std::pair{SystemCall::lseek, 0}, std::pair{SystemCall::read, 0},
          std::pair{SystemCall::write, 1}, std::pair{SystemCall::fsync, 1},
          std::pair{SystemCall::close, 1}, std::pair{SystemCall::rename, 0}}) {
        const TemporaryFolder folder;
        writeContent(folder / "file", "old");
        const Refusal refusal(call, EDQUOT, Refusal::always, spared);
        const auto written = writeFileAtomically(folder / "file", "new");
        ASSERT_FALSE(written) << static_cast<int>(call);
        EXPECT_EQ(written.error(), fileError("written", "file", EDQUOT));
        EXPECT_EQ(contentOf(folder / "file"), "old");
        EXPECT_EQ(folder.names(), Names{"file"});
    }
}

TEST(AtomicFile, NothingIsTakenByAWrite_IsAnErrorAndNoHang) {
    const TemporaryFolder folder;
    const ShortWrites writes(0);
    const auto written = writeFileAtomically(folder / "file", "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error(), fileError("written", "file", EIO));
    EXPECT_EQ(folder.names(), Names{});
}

TEST(AtomicFile, ShortWrites_GoOnWhereTheyEnded) {
    const TemporaryFolder folder;
    const ShortWrites writes(3);
    EXPECT_TRUE(writeFileAtomically(folder / "file", "0123456789"));
    EXPECT_EQ(contentOf(folder / "file"), "0123456789");
}

TEST(AtomicFile, FailingCloseOfAFileThatIsGivenUp_DoesNotHideTheReason) {
    const TemporaryFolder folder;
    const Refusal noProc(SystemCall::access, ENOENT);
    const Refusal close(SystemCall::close, EDQUOT);
    const Refusal open(SystemCall::open, EROFS);
    const auto written = writeFileAtomically(folder / "file", "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error(), fileError("written", "file", EROFS));
}

TEST(AtomicFile, FolderCannotBeSynced_TheExportHasSucceeded) {
    const TemporaryFolder folder;
    const Refusal folderSync(SystemCall::fsync, EINVAL, Refusal::always, 1);
    EXPECT_TRUE(writeFileAtomically(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(folderSync.count(), 1);
}

TEST(AtomicFile, BeyondTheFileSizeLimit_IsAnErrorAndLeavesNothing) {
    const TemporaryFolder folder;
    const auto earlierAction = ::signal(SIGXFSZ, SIG_IGN);
    rlimit earlier{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &earlier), 0);
    const rlimit tight{10'000, earlier.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &tight), 0);
    const auto written = writeFileAtomically(folder / "file", std::string(10'001, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &earlier);
    ::signal(SIGXFSZ, earlierAction);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error(),
              (Error{"POSIX", EFBIG, "The file \"file\" could not be written: File too large."}));
    EXPECT_EQ(folder.names(), Names{});
}

TEST(AtomicFile, ReplacedAgainAndAgain_NobodyEverReadsATornFile) {
    const TemporaryFolder folder;
    const std::size_t size = 100'000;
    ASSERT_TRUE(writeFileAtomically(folder / "file", std::string(size, 'a')));

    std::atomic<int> failures = 0;
    std::atomic<int> writersLeft = 2;
    const auto write = [&](char letter) {
        const std::string text(size, letter);
        for (int i = 0; i < 50; ++i) failures += !writeFileAtomically(folder / "file", text);
        --writersLeft;
    };
    std::thread first(write, 'b');
    std::thread second(write, 'c');
    int torn = 0;
    // On a busy machine the writers may be done before the first look.
    do {
        const auto bytes = readFile(folder / "file");
        if (!bytes || bytes->view().size() != size ||
            bytes->view().find_first_not_of(bytes->view().front()) != std::string_view::npos) {
            ++torn;
        }
    } while (writersLeft > 0);
    first.join();
    second.join();
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(folder.names(), Names{"file"});
}

}  // namespace
}  // namespace clipvane::test
