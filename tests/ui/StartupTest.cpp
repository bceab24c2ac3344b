// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <csignal>
#include <regex>

#include "support/TemporaryFolder.h"
#include "ui/AppLog.h"

namespace clipvane {
namespace {

/// The program itself, on the screen in memory, with a home of its own.
class StartupTest : public testing::Test {
  protected:
    StartupTest() {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("HOME", QString::fromStdString(home.path().string()));
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
            environment.remove(name);
        }
        program.setProcessEnvironment(environment);
        logBefore = test::contentOf(AppLog::url()).size();
    }
    ~StartupTest() override {
        program.kill();
        program.waitForFinished();
    }

    void start(const QStringList& arguments = {}) {
        program.start(CLIPVANE_PROGRAM, arguments);
        ASSERT_TRUE(program.waitForStarted());
    }
    std::vector<std::string> newLogLines() {
        const std::string added = test::contentOf(AppLog::url()).substr(logBefore);
        std::vector<std::string> messages;
        const std::regex line(R"(\[\d{4}-\d\d-\d\d \d\d:\d\d:\d\d \+0000\] (.*)\n)");
        for (std::sregex_iterator it(added.begin(), added.end(), line), end; it != end; ++it) {
            messages.push_back((*it)[1]);
        }
        return messages;
    }
    bool waitForLines(std::size_t count) {
        for (int i = 0; i < 400 && newLogLines().size() < count; ++i) {
            program.waitForReadyRead(25);
        }
        return newLogLines().size() == count;
    }

    test::TemporaryFolder home;
    QProcess program;
    std::size_t logBefore = 0;
};

const std::vector<std::string> startLines{"Process started.", "Setting up main UI.",
                                          "Main window created before run loop.",
                                          "Application did finish launching."};

TEST_F(StartupTest, FourLinesInOrder_NothingElseIsWritten) {
    start();
    EXPECT_TRUE(waitForLines(4));
    EXPECT_EQ(newLogLines(), startLines);
    program.kill();
    program.waitForFinished();
    EXPECT_EQ(program.readAllStandardOutput(), "");
    EXPECT_EQ(program.readAllStandardError(), "");
    EXPECT_FALSE(std::filesystem::exists(home / ".config"));
}

TEST_F(StartupTest, ToolkitOptions_AreNotHonoured) {
    start({"-platform", "no-such-platform", "-style", "windows", "-geometry", "10x10", "--help"});
    EXPECT_TRUE(waitForLines(4));
    EXPECT_EQ(program.state(), QProcess::Running);
}

TEST_F(StartupTest, PipesClosedAndFilesLimited_StillRuns) {
    start();
    ASSERT_TRUE(waitForLines(4));
    for (const int signal : {SIGPIPE, SIGXFSZ}) {
        ::kill(static_cast<pid_t>(program.processId()), signal);
    }
    EXPECT_FALSE(program.waitForFinished(300));
    EXPECT_EQ(program.state(), QProcess::Running);
}

}  // namespace
}  // namespace clipvane
