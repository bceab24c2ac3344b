// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/LogFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <csignal>
#include <map>
#include <sstream>

#include "base/Descriptor.h"
#include "support/RowName.h"
#include "support/ScopedLocale.h"
#include "support/TemporaryFolder.h"
#include "support/WithoutPrivileges.h"

namespace clipvane::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr uid_t ordinaryUser = 65534;  // whom WithoutPrivileges stands for
constexpr uid_t somebodyElse = 65533;

void giveTo(uid_t user, const fs::path& path) {
    ASSERT_EQ(::lchown(path.c_str(), user, user), 0);
}

struct TimeRow {
    std::string name;
    std::time_t time;
    std::string stamp;
};

class LogTime : public testing::TestWithParam<TimeRow> {};

TEST_P(LogTime, IsUTC) {
    const auto time = std::chrono::system_clock::from_time_t(GetParam().time);
    EXPECT_EQ(logLine(time, "Process started."), "[" + GetParam().stamp + "] Process started.\n");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LogTime,
    testing::Values(TimeRow{"Epoch", 0, "1970-01-01 00:00:00 +0000"},
                    TimeRow{"AnyDay", 1794790232, "2026-11-16 00:50:32 +0000"},
                    TimeRow{"LeapDay", 1709251199, "2024-02-29 23:59:59 +0000"},
                    TimeRow{"YearsEnd", 1798761599, "2026-12-31 23:59:59 +0000"},
                    TimeRow{"BeforeTheEpoch", -1, "1969-12-31 23:59:59 +0000"}),
    RowName());

TEST(LogLine, PartsOfASecond_AreCutOff) {
    const auto time = std::chrono::system_clock::from_time_t(0) + std::chrono::milliseconds(1999);
    EXPECT_EQ(logLine(time, ""), "[1970-01-01 00:00:01 +0000] \n");
}

TEST(LogLine, AnyTimeZone_StaysUTC) {
    const char* earlier = ::getenv("TZ");
    const std::string kept = earlier != nullptr ? earlier : "";
    ::setenv("TZ", "XYZ-5:30", 1);
    ::tzset();
    EXPECT_EQ(logLine(std::chrono::system_clock::from_time_t(0), "m"),
              "[1970-01-01 00:00:00 +0000] m\n");
    earlier != nullptr ? ::setenv("TZ", kept.c_str(), 1) : ::unsetenv("TZ");
    ::tzset();
}

TEST(LogLine, AnyLocale_GivesTheSameBytes) {
    const auto time = std::chrono::system_clock::from_time_t(1794790232);
    for (const char* name : localesOfTests) {
        const ScopedLocale locale(name);
        ASSERT_TRUE(locale.isSet()) << name << " is missing in LOCPATH; run the tests with ctest";
        EXPECT_EQ(logLine(time, "m"), "[2026-11-16 00:50:32 +0000] m\n");
    }
}

struct MessageRow {
    std::string name;
    std::string message;
    bool isWritten;
};

class LogMessage : public testing::TestWithParam<MessageRow> {};

TEST_P(LogMessage, IsWrittenUnchangedOrNotAtAll) {
    const auto line = logLine(std::chrono::system_clock::from_time_t(0), GetParam().message);
    if (GetParam().isWritten) {
        EXPECT_EQ(line, "[1970-01-01 00:00:00 +0000] " + GetParam().message + "\n");
    } else {
        EXPECT_EQ(line, std::nullopt);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, LogMessage,
                         testing::Values(MessageRow{"Plain", "Open Timeline clicked.", true},
                                         MessageRow{"Empty", "", true},
                                         MessageRow{"LineBreaks", "one\ntwo\n", true},
                                         MessageRow{"NotASCII", "Z\u00fcrich \U0001F3AC", true},
                                         MessageRow{"NUL", std::string("a\0b", 3), true},
                                         MessageRow{"InvalidUTF8", "cut\xFF.edl", false},
                                         MessageRow{"CutOffUTF8", "cut\xE2\x82", false},
                                         MessageRow{"Surrogate", "\xED\xA0\x80", false}),
                         RowName());

class LogFile : public testing::Test {
  protected:
    void append(std::string_view line) const { appendLogLine(log, line); }

    const TemporaryFolder folder;
    const fs::path log = folder / "test.log";
};

TEST_F(LogFile, Absent_IsCreatedWithTheLine) {
    append("one\n");
    EXPECT_EQ(contentOf(log), "one\n");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(log)));
}

TEST_F(LogFile, Present_IsAppendedTo) {
    writeContent(log, "of an earlier run\n");
    append("one\n");
    append("two\nwith a line break\n");
    EXPECT_EQ(contentOf(log), "of an earlier run\none\ntwo\nwith a line break\n");
}

TEST_F(LogFile, TwoProcessesAtOnce_EveryLineStaysWhole) {
    constexpr int linesEach = 500;
    const auto writeLines = [&](std::string_view line) {
        const pid_t child = ::fork();
        if (child != 0) return child;
        for (int i = 0; i < linesEach; ++i) append(line);
        ::_exit(0);
    };
    const pid_t children[] = {writeLines("aaaaaaaa\n"), writeLines("bbbb\n")};
    for (const pid_t child : children) ASSERT_EQ(::waitpid(child, nullptr, 0), child);

    std::istringstream lines(contentOf(log));
    std::map<std::string, int> counts;
    for (std::string line; std::getline(lines, line);) ++counts[line];
    EXPECT_EQ(counts, (std::map<std::string, int>{{"aaaaaaaa", linesEach}, {"bbbb", linesEach}}));
}

TEST_F(LogFile, ReadOnly_StaysAsItIs) {
    writeContent(log, "old\n");
    fs::permissions(log, fs::perms{0444});
    if (::geteuid() == 0) giveTo(ordinaryUser, log);
    const WithoutPrivileges user;
    append("one\n");
    EXPECT_EQ(contentOf(log), "old\n");
    EXPECT_THAT(folder.names(), ElementsAre("test.log"));
}

TEST_F(LogFile, ReadOnlyFolder_NothingIsCreated) {
    fs::permissions(folder.path(), fs::perms{0555});
    const WithoutPrivileges user;
    append("one\n");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(LogFile, FileSizeLimit_NothingMoreIsWritten) {
    const auto appendBeyondTheLimit = [&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{10, 10};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        append("123456\n");
        append("123456\n");
        append("123456\n");
        ::_exit(0);
    };
    EXPECT_EXIT(appendBeyondTheLimit(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(contentOf(log), "123456\n123");
}

TEST_F(LogFile, MissingFolder_NothingHappens) {
    appendLogLine(folder / "nowhere" / "test.log", "one\n");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(LogFile, OwnLinkToAnOwnFile_IsFollowed) {
    writeContent(folder / "real.log", "old\n");
    fs::create_symlink(folder / "real.log", log);
    append("one\n");
    EXPECT_EQ(contentOf(folder / "real.log"), "old\none\n");
    EXPECT_TRUE(fs::is_symlink(log));
}

TEST_F(LogFile, OwnRelativeLinks_AreFollowed) {
    fs::create_directory(folder / "inner");
    fs::create_symlink("inner/second", log);
    fs::create_symlink("../real.log", folder / "inner/second");
    writeContent(folder / "real.log", "old\n");
    append("one\n");
    EXPECT_EQ(contentOf(folder / "real.log"), "old\none\n");
}

TEST_F(LogFile, OwnDanglingLink_TheFileIsCreatedWhereItLeads) {
    fs::create_symlink("real.log", log);
    append("one\n");
    EXPECT_EQ(contentOf(folder / "real.log"), "one\n");
    EXPECT_TRUE(fs::is_symlink(log));
}

TEST_F(LogFile, LinkLoop_NothingIsWritten) {
    fs::create_symlink("other.log", log);
    fs::create_symlink("test.log", folder / "other.log");
    append("one\n");
    EXPECT_THAT(folder.names(), ElementsAre("other.log", "test.log"));
    EXPECT_TRUE(fs::is_symlink(log));
}

TEST_F(LogFile, LinkToAFolder_NothingIsWritten) {
    fs::create_directory(folder / "inner");
    fs::create_symlink("inner", log);
    append("one\n");
    EXPECT_TRUE(fs::is_empty(folder / "inner"));
}

TEST_F(LogFile, Folder_StaysAFolder) {
    fs::create_directory(log);
    append("one\n");
    EXPECT_TRUE(fs::is_directory(log));
    EXPECT_TRUE(fs::is_empty(log));
}

TEST_F(LogFile, FIFOWithoutAReader_IsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(log.c_str(), 0600), 0);
    append("one\n");
    EXPECT_TRUE(fs::is_fifo(log));
}

TEST_F(LogFile, FIFOWithAReader_GetsNothing) {
    ASSERT_EQ(::mkfifo(log.c_str(), 0600), 0);
    const Descriptor reader = openFile(log.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_TRUE(reader.isOpen());
    append("one\n");
    char byte = 0;
    EXPECT_EQ(::read(reader.number(), &byte, 1), 0);
}

/// What others put in the log's place. Only root can play the others.
class ForeignLog : public LogFile {
  protected:
    void SetUp() override {
        if (::geteuid() != 0) GTEST_SKIP() << "only root can make files of other users";
    }
};

TEST_F(ForeignLog, FileOfAnotherUser_IsNotWritten) {
    writeContent(log, "theirs\n");
    fs::permissions(log, fs::perms{0666});
    giveTo(somebodyElse, log);
    append("one\n");
    EXPECT_EQ(contentOf(log), "theirs\n");
}

TEST_F(ForeignLog, LinkOfAnotherUserToAnOwnFile_IsNotFollowed) {
    writeContent(folder / "mine", "mine\n");
    fs::create_symlink("mine", log);
    giveTo(somebodyElse, log);
    append("one\n");
    EXPECT_EQ(contentOf(folder / "mine"), "mine\n");
}

TEST_F(ForeignLog, DanglingLinkOfAnotherUser_NothingIsCreated) {
    fs::create_symlink("mine", log);
    giveTo(somebodyElse, log);
    append("one\n");
    EXPECT_THAT(folder.names(), ElementsAre("test.log"));
}

TEST_F(ForeignLog, OwnLinkToAFileOfAnotherUser_IsNotWritten) {
    writeContent(folder / "theirs", "theirs\n");
    giveTo(somebodyElse, folder / "theirs");
    fs::create_symlink("theirs", log);
    append("one\n");
    EXPECT_EQ(contentOf(folder / "theirs"), "theirs\n");
}

TEST_F(ForeignLog, OwnLinkToALinkOfAnotherUser_IsNotFollowed) {
    writeContent(folder / "mine", "mine\n");
    fs::create_symlink("mine", folder / "theirs");
    giveTo(somebodyElse, folder / "theirs");
    fs::create_symlink("theirs", log);
    append("one\n");
    EXPECT_EQ(contentOf(folder / "mine"), "mine\n");
}

}  // namespace
}  // namespace clipvane::test
