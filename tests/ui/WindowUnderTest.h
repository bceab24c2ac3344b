// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <string>

#include "support/TemporaryFolder.h"
#include "ui/CommentsView.h"
#include "ui/DetailRowView.h"
#include "ui/EventTableView.h"
#include "ui/FrameRatePopup.h"
#include "ui/InspectorWindowController.h"
#include "ui/MainLayoutView.h"
#include "ui/ModalAnswers.h"
#include "ui/StatusLabel.h"
#include "ui/TextLabel.h"

namespace clipvane::test {

/// The real window, driven through what a user sees.
class WindowTest : public testing::Test {
  protected:
    WindowTest() {
        controller.showWindow();
        controller.window()->resize(1440, 860);  // more than the screen in memory has
        QCoreApplication::processEvents();
    }

    template <class Widget>
    Widget* find() {
        for (auto* widget : controller.window()->findChildren<QWidget*>()) {
            if (auto* found = dynamic_cast<Widget*>(widget)) return found;
        }
        return nullptr;
    }
    QPushButton* button(const QString& title) {
        for (auto* candidate : controller.window()->findChildren<QPushButton*>()) {
            if (candidate->text() == title) return candidate;
        }
        return nullptr;
    }
    void click(const QString& title) { QTest::mouseClick(button(title), Qt::LeftButton); }
    QString status() { return find<StatusLabel>()->text(); }
    QStringList details() {
        QStringList values;
        for (auto* widget : controller.window()->findChildren<QWidget*>()) {
            if (auto* row = dynamic_cast<DetailRowView*>(widget)) {
                values << row->keyLabel->text() + "=" + row->valueLabel->text();
            }
        }
        return values;
    }
    QLabel* label(const QString& text) {
        for (auto* candidate : controller.window()->findChildren<QLabel*>()) {
            if (candidate->text() == text) return candidate;
        }
        return nullptr;
    }

    /// An EDL of `count` events at 25 fps.
    std::string writeEDL(const std::string& name, int count) {
        std::string text = "TITLE: T\n* FPS: 25\n\n";
        for (int i = 1; i <= count; ++i) {
            text += "00" + std::to_string(i) + "  R" + std::to_string(i) +
                    " V C 01:00:00:00 01:00:04:00 02:00:00:00 02:00:04:00\n";
        }
        writeContent(folder / name, text);
        return (folder / name).string();
    }
    void open(const std::string& path) {
        answers.chooseFile(path);
        answers.dismissAlert();
        click("Open Timeline");
    }

    TemporaryFolder folder;
    ModalAnswers answers;
    InspectorWindowController controller;
};

}  // namespace clipvane::test
