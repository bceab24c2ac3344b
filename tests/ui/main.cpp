// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <QApplication>

#include "ui/Startup.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    clipvane::prepareToolkit();
    QApplication application(argc, argv);
    clipvane::dressApplication(application);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
