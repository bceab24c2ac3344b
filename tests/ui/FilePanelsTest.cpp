// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FilePanels.h"

#include <QAbstractItemView>
#include <QDir>
#include <QScopeGuard>

#include "ui/WindowUnderTest.h"

namespace clipvane {
namespace {

class FilePanelsTest : public test::WindowTest {
  protected:
    FilePanelsTest() { QDir::setCurrent(path()); }
    ~FilePanelsTest() override { QDir::setCurrent(before); }

    QString path() const { return QString::fromStdString(folder.path().string()); }
    QString folderOf(const QString& command) {
        QString shown;
        answers.lookAtPanel([&](QFileDialog& panel) { shown = panel.directory().path(); });
        click(command);
        return shown;
    }
    /// The names that the panel lists, sorted.
    QStringList listed(const QString& command, qsizetype count) {
        QStringList names;
        answers.lookAtPanel([&](QFileDialog& panel) {
            const auto* view = panel.findChild<QAbstractItemView*>("treeView");
            const auto rows = [&] { return view->model()->rowCount(view->rootIndex()); };
            EXPECT_TRUE(QTest::qWaitFor([&] { return rows() >= count; }));
            for (int row = 0; row < rows(); ++row) {
                names << view->model()->index(row, 0, view->rootIndex()).data().toString();
            }
            names.sort();
            selection = view->selectionMode();
            mode = panel.fileMode();
            suffix = panel.defaultSuffix();
        });
        click(command);
        return names;
    }

    const QString before = QDir::currentPath();
    QAbstractItemView::SelectionMode selection{};
    QFileDialog::FileMode mode{};
    QString suffix;
};

TEST_F(FilePanelsTest, NewRun_StartInTheWorkingDirectory) {
    EXPECT_EQ(folderOf("Open Timeline"), path());
    EXPECT_EQ(folderOf("Export CSV"), path());
    EXPECT_TRUE(answers.allGiven());
}

TEST_F(FilePanelsTest, NewRunInTheRootOfAllFolders_StartAtHome) {
    QDir::setCurrent("/");
    const QByteArray home = qgetenv("HOME");
    const auto restore = qScopeGuard([&] { qputenv("HOME", home); });
    qputenv("HOME", path().toUtf8());
    EXPECT_EQ(folderOf("Open Timeline"), path());
}

TEST_F(FilePanelsTest, FileOpened_BothStartInItsFolder) {
    QDir(path()).mkdir("reels");
    open(writeEDL("reels/cut.edl", 1));
    EXPECT_EQ(folderOf("Export EDL"), path() + "/reels");
    EXPECT_EQ(folderOf("Open Timeline"), path() + "/reels");
}

TEST_F(FilePanelsTest, OpenPanel_ListsTimelinesInAnyCaseAndTakesOne) {
    const QStringList timelines{"A.EDL", "b.txt", "c.Xml", "d.fcpxml", "e.xmeml", "reels"};
    for (const char* name : {"A.EDL", "b.txt", "c.Xml", "d.fcpxml", "e.xmeml", "f.mov", "g.edl~"}) {
        test::writeContent(folder / name, "");
    }
    QDir(path()).mkdir("reels");
    EXPECT_EQ(listed("Open Timeline", timelines.size()), timelines);
    EXPECT_EQ(mode, QFileDialog::ExistingFile);
    EXPECT_EQ(selection, QAbstractItemView::SingleSelection);
    EXPECT_TRUE(answers.allGiven());
}

TEST_F(FilePanelsTest, SavePanel_ListsEveryFileAndAddsNoSuffix) {
    for (const char* name : {"a.edl", "b.csv", "c"}) test::writeContent(folder / name, "");
    for (const char* command : {"Export CSV", "Export EDL"}) {
        EXPECT_EQ(listed(command, 3), (QStringList{"a.edl", "b.csv", "c"})) << command;
        EXPECT_EQ(mode, QFileDialog::AnyFile);
        EXPECT_EQ(selection, QAbstractItemView::SingleSelection);
        EXPECT_EQ(suffix, "");
    }
}

}  // namespace
}  // namespace clipvane
