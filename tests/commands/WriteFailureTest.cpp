// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>

#include <clipvane/CSVReport.h>
#include <clipvane/EditedEDL.h>
#include "commands/SampleEvents.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"
#include "support/WithoutPrivileges.h"

namespace clipvane::test {
namespace {

using Write = Result<void> (*)(const TimelineDocument&, const std::filesystem::path&);

struct Writer {
    std::string name;
    Write write;
};

/// Both writers fail alike: the error names the file and the system's reason, and nothing is left.
class WriteFailure : public testing::TestWithParam<Writer> {
  protected:
    WriteFailure() { fillWithSamples(document, 3); }

    Error errorOf(const std::filesystem::path& url) const {
        const auto written = GetParam().write(document, url);
        EXPECT_FALSE(written);
        return written ? Error{} : written.error();
    }

    const TemporaryFolder folder;
    TimelineDocument document;
};

TEST_P(WriteFailure, MissingFolder) {
    EXPECT_EQ(errorOf(folder / "nowhere/out.txt"),
              (Error{"POSIX", ENOENT,
                     "The file \"out.txt\" could not be written: No such file or directory."}));
    EXPECT_EQ(folder.names().size(), 0U);
}

TEST_P(WriteFailure, FolderInTheFilesPlace) {
    std::filesystem::create_directory(folder / "out.txt");
    EXPECT_EQ(
        errorOf(folder / "out.txt"),
        (Error{"POSIX", EISDIR, "The file \"out.txt\" could not be written: Is a directory."}));
    EXPECT_EQ(folder.names().size(), 1U);
}

TEST_P(WriteFailure, FileInTheFoldersPlace) {
    writeContent(folder / "file", "");
    EXPECT_EQ(
        errorOf(folder / "file/out.txt"),
        (Error{"POSIX", ENOTDIR, "The file \"out.txt\" could not be written: Not a directory."}));
}

TEST_P(WriteFailure, FIFOInTheFilesPlace_NoWaitingForAReader) {
    ASSERT_EQ(::mkfifo((folder / "out.txt").c_str(), 0600), 0);
    EXPECT_EQ(errorOf(folder / "out.txt").description,
              "The file \"out.txt\" could not be written: Not a regular file.");
    EXPECT_TRUE(std::filesystem::is_fifo(folder / "out.txt"));
}

TEST_P(WriteFailure, ReadOnlyFolder_TheOldFileStays) {
    const auto locked = folder / "locked";
    std::filesystem::create_directory(locked);
    writeContent(locked / "out.txt", "old");
    std::filesystem::permissions(locked, std::filesystem::perms(0555));
    Error error;
    {
        const WithoutPrivileges ordinaryUser;
        error = errorOf(locked / "out.txt");
    }
    EXPECT_EQ(error, (Error{"POSIX", EACCES,
                            "The file \"out.txt\" could not be written: Permission denied."}));
    EXPECT_EQ(contentOf(locked / "out.txt"), "old");
    std::filesystem::permissions(locked, std::filesystem::perms(0755));
}

/// While it lives, no file may grow beyond `size`, and trying is an error.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t size) : earlierAction(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &earlierLimit);
        const rlimit limit{size, earlierLimit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &earlierLimit);
        std::signal(SIGXFSZ, earlierAction);
    }

  private:
    rlimit earlierLimit{};
    void (*earlierAction)(int);
};

TEST_P(WriteFailure, TextBeyondTheFileSizeLimit_TheOldFileStays) {
    fillWithSamples(document, 10000);
    writeContent(folder / "out.txt", "old");
    Error error;
    {
        const FileSizeLimit limit(600'000);
        error = errorOf(folder / "out.txt");
    }
    EXPECT_EQ(error, (Error{"POSIX", EFBIG,
                            "The file \"out.txt\" could not be written: File too large."}));
    EXPECT_EQ(contentOf(folder / "out.txt"), "old");
    EXPECT_EQ(folder.names().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Writers, WriteFailure,
                         testing::Values(Writer{"CSV", writeCSV}, Writer{"EDL", writeEDL}),
                         RowName());

}  // namespace
}  // namespace clipvane::test
