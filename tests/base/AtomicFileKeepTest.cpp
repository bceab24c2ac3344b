// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "base/AtomicFile.h"
#include "base/SystemCalls.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

using Names = std::vector<std::string>;

/// Writes a file that must not be there before.
Result<void> writeNew(const std::filesystem::path& path) {
    auto file = AtomicFile::create(path, AtomicFile::Existing::keep);
    if (!file) return tl::unexpected(file.error());
    if (auto written = file->write("ours"); !written) return written;
    return file->commit();
}

const Error isThere = fileError("written", "file", EEXIST);

TEST(AtomicFileKeep, NothingThere_IsWritten) {
    const TemporaryFolder folder;
    EXPECT_TRUE(writeNew(folder / "file"));
    EXPECT_EQ(contentOf(folder / "file"), "ours");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(AtomicFileKeep, FileThere_IsRefusedBeforeAnythingIsWritten) {
    const TemporaryFolder folder;
    writeContent(folder / "file", "old");
    std::filesystem::create_symlink("file", folder / "link");
    EXPECT_EQ(AtomicFile::create(folder / "file", AtomicFile::Existing::keep).error(), isThere);
    EXPECT_EQ(AtomicFile::create(folder / "link", AtomicFile::Existing::keep).error(),
              fileError("written", "link", EEXIST));
    EXPECT_EQ(contentOf(folder / "file"), "old");
}

TEST(AtomicFileKeep, CreatedBetweenCheckAndLink_IsKept) {
    const TemporaryFolder folder;
    const Interruption meanwhile(SystemCall::linkat,
                                 [&] { writeContent(folder / "file", "somebody else's"); });
    const auto written = writeNew(folder / "file");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error(), isThere);
    EXPECT_EQ(contentOf(folder / "file"), "somebody else's");
    EXPECT_EQ(folder.names(), Names{"file"});
}

/// Where files without a name cannot be had, in one step or, as on older systems, in two.
TEST(AtomicFileKeep, CreatedBeforeTheRename_IsKept) {
    for (const bool inTwoSteps : {false, true}) {
        const Refusal noNamelessFiles(SystemCall::openWithoutName, EOPNOTSUPP);
        const TemporaryFolder folder;
        std::optional<Refusal> noSingleStep;
        if (inTwoSteps) noSingleStep.emplace(SystemCall::renameat2, EINVAL);
        EXPECT_TRUE(writeNew(folder / "other"));
        EXPECT_EQ(contentOf(folder / "other"), "ours");
        const Interruption meanwhile(SystemCall::close,
                                     [&] { writeContent(folder / "file", "somebody else's"); });
        const auto written = writeNew(folder / "file");
        ASSERT_FALSE(written);
        EXPECT_EQ(written.error(), isThere);
        EXPECT_EQ(contentOf(folder / "file"), "somebody else's");
        EXPECT_EQ(folder.names(), (Names{"file", "other"}));
    }
}

}  // namespace
}  // namespace clipvane::test
