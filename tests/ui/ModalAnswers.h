// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <deque>
#include <functional>

#include "ui/AlertDialog.h"

namespace clipvane::test {

/// Answers the modal dialogs that a command runs, in the order given, as a user would. What was
/// not expected is rejected and counted.
class ModalAnswers {
  public:
    ModalAnswers() {
        timer.setInterval(5);
        QObject::connect(&timer, &QTimer::timeout, [this] { answer(); });
        timer.start();
    }

    /// The next dialog is a file panel, in which `path` is typed.
    void chooseFile(const std::string& path) {
        answers.push_back([this, path](QWidget* dialog) {
            auto* panel = qobject_cast<QFileDialog*>(dialog);
            if (panel == nullptr) return false;
            presetName = panel->selectedFiles().value(0);
            panel->findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
            QMetaObject::invokeMethod(panel, "accept", Qt::QueuedConnection);
            return true;
        });
    }
    void cancelPanel() {
        answers.push_back([](QWidget* dialog) {
            if (qobject_cast<QFileDialog*>(dialog) == nullptr) return false;
            QMetaObject::invokeMethod(dialog, "reject", Qt::QueuedConnection);
            return true;
        });
    }
    /// The next dialog is a file panel, which is cancelled after `look`.
    void lookAtPanel(std::function<void(QFileDialog&)> look) {
        answers.push_back([look = std::move(look)](QWidget* dialog) {
            auto* panel = qobject_cast<QFileDialog*>(dialog);
            if (panel == nullptr) return false;
            look(*panel);
            QMetaObject::invokeMethod(panel, "reject", Qt::QueuedConnection);
            return true;
        });
    }
    /// The next dialog is an alert; its texts are kept.
    void dismissAlert() {
        answers.push_back([this](QWidget* dialog) {
            if (dynamic_cast<AlertDialog*>(dialog) == nullptr) return false;
            alerts << dialog->accessibleName() + ": " + dialog->accessibleDescription();
            QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
            return true;
        });
    }

    bool allGiven() const { return answers.empty() && unexpected == 0; }

    QStringList alerts;
    QString presetName;  ///< what the last panel held
    int unexpected = 0;

  private:
    void answer() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog == answered) return;
        answered = dialog;
        QObject::connect(dialog, &QObject::destroyed, &timer, [this] { answered = nullptr; });
        if (!answers.empty() && answers.front()(dialog)) {
            answers.pop_front();
        } else {
            ++unexpected;
            QMetaObject::invokeMethod(dialog, "reject", Qt::QueuedConnection);
        }
    }

    QTimer timer;
    QWidget* answered = nullptr;
    std::deque<std::function<bool(QWidget*)>> answers;
};

}  // namespace clipvane::test
