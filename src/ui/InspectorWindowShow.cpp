// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "ui/Geometry.h"
#include "ui/HelpWindow.h"
#include "ui/InspectorWindowController.h"

namespace clipvane {
namespace {

constexpr int activationPatience = 1000;  ///< ms; a desktop may refuse to activate a window

QMargins frameOf(const QWidget& window) {
    return window.windowHandle() ? window.windowHandle()->frameMargins() : QMargins();
}

/// Handles events of the window system alone: it is too early for clicks and keys.
void waitUntilActive(const QWidget& window) {
    const QDeadlineTimer deadline(activationPatience);
    QTimer wake;  // ends a wait in which nothing happens
    wake.start(20);
    while (!window.isActiveWindow() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::WaitForMoreEvents);
    }
}

}  // namespace

void InspectorWindowController::showWindow() {
    fitScreen();
    mainWindow.show();
    mainWindow.raise();
    mainWindow.activateWindow();
    waitUntilActive(mainWindow);
    fitScreen();
}

/// On a small screen the window, frame included, fits into the free area, unless that is less than
/// its least size.
void InspectorWindowController::fitScreen() {
    const QSize room = mainWindow.screen()->availableGeometry().size();
    const QSize fitting = windowSize.boundedTo(room.shrunkBy(frameOf(mainWindow)));
    mainWindow.resize(fitting.expandedTo(mainWindow.minimumSize()));
}

void InspectorWindowController::showHelp() {
    if (!helpWindow) {
        helpWindow = std::make_unique<HelpWindow>();
        // The help window will get the same frame, but has none yet.
        helpWindow->centre(mainWindow.screen()->availableGeometry(), frameOf(mainWindow));
    }
    helpWindow->show();
    helpWindow->raise();
    helpWindow->activateWindow();
}

}  // namespace clipvane
