// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QApplication>

#include "ui/AppDelegate.h"
#include "ui/AppLog.h"
#include "ui/InspectorWindowController.h"
#include "ui/Startup.h"

int main() {
    using namespace clipvane;
    ignoreWriteSignals();
    AppLog::write("Process started.");
    prepareToolkit();

    // The toolkit would take some arguments for its own options; the program has none.
    int argumentCount = 1;
    char name[] = "clipvane";
    char* arguments[] = {name, nullptr};
    QApplication app(argumentCount, arguments);
    dressApplication(app);
    const AppDelegate delegate;
    app.setQuitOnLastWindowClosed(delegate.applicationShouldTerminateAfterLastWindowClosed());

    InspectorWindowController mainController;
    mainController.showWindow();
    AppLog::write("Main window created before run loop.");
    QMetaObject::invokeMethod(
        &app, [&] { delegate.applicationDidFinishLaunching(); }, Qt::QueuedConnection);
    // A window that was closed before would not end the loop any more.
    return mainController.window()->isHidden() ? 0 : app.exec();
}
