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

    // The toolkit would read options among the arguments; the program has none.
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
    return app.exec();
}
