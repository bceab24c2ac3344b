// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FileKinds.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFileInfo>

#include "support/TemporaryFolder.h"

namespace clipvane {
namespace {

class FileKindsTest : public testing::Test {
  protected:
    std::string kindOf(const std::string& name) {
        return kinds.type(QFileInfo(QString::fromStdString((folder / name).string())))
            .toStdString();
    }

    test::TemporaryFolder folder;
    FileKinds kinds;
};

TEST_F(FileKindsTest, Timelines_ByTheirExtensionInAnyCase) {
    EXPECT_EQ(kindOf("cut.edl"), "EDL timeline");
    EXPECT_EQ(kindOf("CUT.V2.EDL"), "EDL timeline");
    EXPECT_EQ(kindOf("cut.FCPXML"), "FCPXML timeline");
    EXPECT_EQ(kindOf("cut.xmeml"), "XMEML timeline");
}

TEST_F(FileKindsTest, Others_ByTheirExtensionAlone) {
    for (const char* name : {"book.zzz", "book"}) {
        test::writeContent(folder / name, "%PDF-1.4");
        EXPECT_EQ(kindOf(name), "File") << name;
    }
    test::writeContent(folder / "book.xml", "%PDF-1.4");
    EXPECT_NE(kindOf("book.xml"), "File");
    EXPECT_EQ(kindOf("book.xml"), kindOf("missing.xml"));
}

TEST_F(FileKindsTest, Folder_IsOneWhateverItsName) {
    mkdir((folder / "reel.edl").c_str(), 0700);
    EXPECT_EQ(kindOf("reel.edl"), "Folder");
}

TEST_F(FileKindsTest, Pipe_BlocksNothing) {
    ASSERT_EQ(mkfifo((folder / "pipe.zzz").c_str(), 0600), 0);
    EXPECT_EQ(kindOf("pipe.zzz"), "File");
}

}  // namespace
}  // namespace clipvane
