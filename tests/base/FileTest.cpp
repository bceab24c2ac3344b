// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/File.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <string>

#include "base/SystemCalls.h"
#include "support/LongTest.h"
#include "support/TemporaryFolder.h"
#include "support/WithoutPrivileges.h"

namespace clipvane::test {
namespace {

Error errorOf(const Result<FileBytes>& result) {
    EXPECT_FALSE(result.has_value());
    return result ? Error{} : result.error();
}

TEST(FileBytes, Fresh_HasNoBytes) {
    EXPECT_EQ(FileBytes().view(), "");
}

TEST(ReadFile, AnySize_GivesAllBytes) {
    const TemporaryFolder folder;
    for (const std::size_t size : {0UL, 1UL, 4095UL, 4096UL, 4097UL, 65536UL, 5'000'003UL}) {
        std::string content(size, '\0');
        for (std::size_t i = 0; i < size; ++i) content[i] = static_cast<char>(i * 31 >> 3);
        writeContent(folder / "file", content);
        const auto bytes = readFile(folder / "file");
        ASSERT_TRUE(bytes);
        EXPECT_TRUE(bytes->view() == content) << size;
    }
}

TEST(ReadFile, Link_IsFollowed) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "text");
    std::filesystem::create_symlink("file", folder / "link");
    const auto bytes = readFile(folder / "link");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->view(), "text");
}

TEST(ReadFile, Missing_GivesTheReason) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf(readFile(folder / "cut.edl")),
              (Error{"POSIX", ENOENT,
                     "The file \"cut.edl\" could not be read: No such file or directory."}));
}

TEST(ReadFile, Folder_GivesTheReason) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "cut.edl");
    EXPECT_EQ(errorOf(readFile(folder / "cut.edl")),
              (Error{"POSIX", EISDIR, "The file \"cut.edl\" could not be read: Is a directory."}));
}

TEST(ReadFile, FileAsAFolder_GivesTheReason) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "text");
    EXPECT_EQ(errorOf(readFile(folder / "file/cut.edl")).code, ENOTDIR);
}

TEST(ReadFile, LinkLoop_GivesTheReason) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("cut.edl", folder / "cut.edl");
    EXPECT_EQ(errorOf(readFile(folder / "cut.edl")).code, ELOOP);
}

TEST(ReadFile, EmptyPath_GivesTheReason) {
    EXPECT_EQ(errorOf(readFile("")).code, ENOENT);
}

TEST(ReadFile, FIFO_IsRefusedWithoutWaiting) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "cut.edl").c_str(), 0600), 0);
    ::alarm(10);  // ends the test if it waits
    EXPECT_EQ(
        errorOf(readFile(folder / "cut.edl")),
        (Error{"POSIX", EINVAL, "The file \"cut.edl\" could not be read: Not a regular file."}));
    ::alarm(0);
}

TEST(ReadFile, WhatMightActOnBeingOpened_IsNotOpened) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    const Refusal opening(SystemCall::open, EIO);
    EXPECT_EQ(errorOf(readFile(folder / "fifo")).code, EINVAL);
    EXPECT_EQ(errorOf(readFile("/dev/null")).code, EINVAL);
    EXPECT_EQ(opening.count(), 0);
}

TEST(ReadFile, FIFOPutThereMeanwhile_IsRefusedWithoutWaiting) {
    const TemporaryFolder folder;
    writeContent(folder / "cut.edl", "text");
    const Interruption meanwhile(SystemCall::open, [&] {
        std::filesystem::remove(folder / "cut.edl");
        ::mkfifo((folder / "cut.edl").c_str(), 0600);
    });
    ::alarm(10);  // ends the test if it waits
    EXPECT_EQ(errorOf(readFile(folder / "cut.edl")).code, EINVAL);
    ::alarm(0);
}

TEST(ReadFile, Device_IsRefused) {
    EXPECT_EQ(errorOf(readFile("/dev/null")),
              (Error{"POSIX", EINVAL, "The file \"null\" could not be read: Not a regular file."}));
}

TEST(ReadFile, Socket_IsRefused) {
    const TemporaryFolder folder;
    const std::string path = folder / "cut.edl";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof address.sun_path);
    std::memcpy(address.sun_path, path.data(), path.size());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(
        errorOf(readFile(path)),
        (Error{"POSIX", EINVAL, "The file \"cut.edl\" could not be read: Not a regular file."}));
    ::close(socket);
}

TEST(ReadFile, WithoutPermission_GivesTheReason) {
    const TemporaryFolder folder;
    writeContent(folder / "cut.edl", "text");
    std::filesystem::permissions(folder / "cut.edl", std::filesystem::perms{0444});
    const auto readByOrdinaryUser = [&] {
        const WithoutPrivileges ordinaryUser;
        return readFile(folder / "cut.edl");
    };
    ASSERT_TRUE(readByOrdinaryUser());
    std::filesystem::permissions(folder / "cut.edl", std::filesystem::perms{0000});
    EXPECT_EQ(
        errorOf(readByOrdinaryUser()),
        (Error{"POSIX", EACCES, "The file \"cut.edl\" could not be read: Permission denied."}));
}

TEST(ReadFile, FileOfUntoldSize_IsReadWhole) {
    ASSERT_EQ(std::filesystem::file_size("/proc/self/maps"), 0U);
    const auto bytes = readFile("/proc/self/maps");
    ASSERT_TRUE(bytes);
    EXPECT_GT(bytes->view().size(), 4096U);
    EXPECT_TRUE(bytes->view().ends_with('\n'));
    EXPECT_NE(bytes->view().find("base_tests"), std::string_view::npos);
}

TEST(ReadFile, ShrunkMeanwhile_GivesWhatIsLeft) {
    const TemporaryFolder folder;
    writeContent(folder / "file", std::string(1'000'000, 'x'));
    const Interruption meanwhile(SystemCall::read,
                                 [&] { std::filesystem::resize_file(folder / "file", 1000); });
    const auto bytes = readFile(folder / "file");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->view(), std::string(1000, 'x'));
}

TEST(ReadFile, GrownMeanwhile_GivesAllThatIsThere) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "head");
    const Interruption meanwhile(SystemCall::read, [&] {
        std::ofstream(folder / "file", std::ios::app) << std::string(300'000, 'y');
    });
    const auto bytes = readFile(folder / "file");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->view(), "head" + std::string(300'000, 'y'));
}

TEST(ReadFile, InterruptedCalls_AreMadeAgain) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "text");
    const Refusal looking(SystemCall::stat, EINTR, 2);
    const Refusal opening(SystemCall::open, EINTR, 2);
    const Refusal lookingAgain(SystemCall::fstat, EINTR, 2);
    const Refusal reading(SystemCall::read, EINTR, 3);
    const auto bytes = readFile(folder / "file");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->view(), "text");
    EXPECT_EQ(looking.count(), 2);
    EXPECT_EQ(opening.count(), 2);
    EXPECT_EQ(lookingAgain.count(), 2);
    EXPECT_EQ(reading.count(), 3);
}

TEST(ReadFile, FailsOnTheWay_GivesTheReason) {
    const TemporaryFolder folder;
    writeContent(folder / "cut.edl", "text");
    const Refusal reading(SystemCall::read, EIO);
    EXPECT_EQ(errorOf(readFile(folder / "cut.edl")),
              (Error{"POSIX", EIO, "The file \"cut.edl\" could not be read: Input/output error."}));
}

/// Bytes of memory that the system can hand out without pressing others.
std::size_t availableMemory() {
    std::ifstream stream("/proc/meminfo");
    std::string key;
    std::size_t kilobytes = 0;
    while (stream >> key) {
        if (key == "MemAvailable:" && stream >> kilobytes) return kilobytes * 1024;
    }
    return 0;
}

TEST(ReadFile, FileLargerThanTheKernelReadsInOneCall_IsReadWhole) {
    CLIPVANE_LONG_TEST();
    constexpr std::size_t size = std::size_t{1} << 31;
    if (availableMemory() < 2 * size) GTEST_SKIP() << "needs 4 GB of free memory";
    const TemporaryFolder folder;
    writeContent(folder / "file", "head");
    std::filesystem::resize_file(folder / "file", size);
    std::ofstream(folder / "file", std::ios::app) << "tail";
    const auto bytes = readFile(folder / "file");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->view().size(), size + 4);
    EXPECT_TRUE(bytes->view().starts_with("head"));
    EXPECT_TRUE(bytes->view().ends_with("tail"));
}

#if defined(__SANITIZE_ADDRESS__)
#define CLIPVANE_ENDS_WITHOUT_MEMORY
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define CLIPVANE_ENDS_WITHOUT_MEMORY
#endif
#endif

TEST(ReadFile, FileThatFitsIntoNoMemory_IsAnError) {
#ifdef CLIPVANE_ENDS_WITHOUT_MEMORY
    GTEST_SKIP() << "the address sanitizer ends a program that asks for too much memory";
#else
    const TemporaryFolder folder;
    writeContent(folder / "cut.edl", "head");
    std::error_code error;
    std::filesystem::resize_file(folder / "cut.edl", std::uintmax_t{8} << 40, error);
    if (error) GTEST_SKIP() << "the file system has no files of 8 TB";
    rlimit earlier{};
    ASSERT_EQ(::getrlimit(RLIMIT_AS, &earlier), 0);
    const rlimit tight{rlim_t{4} << 30, earlier.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &tight), 0);
    const auto bytes = readFile(folder / "cut.edl");
    ::setrlimit(RLIMIT_AS, &earlier);
    EXPECT_EQ(errorOf(bytes),
              (Error{"POSIX", ENOMEM,
                     "The file \"cut.edl\" could not be read: Cannot allocate memory."}));
#endif
}

}  // namespace
}  // namespace clipvane::test
