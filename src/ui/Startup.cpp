// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/Startup.h"

#include <QApplication>
#include <QIcon>
#include <QSettings>
#include <QStyle>
#include <QToolTip>
#include <csignal>
#include <cstdio>

#include "ui/Accessibility.h"
#include "ui/ClipvaneStyle.h"
#include "ui/FocusRing.h"
#include "ui/Fonts.h"

namespace clipvane {
namespace {

/// Only what ends the program is worth a line on the standard error.
void reportFatal(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtFatalMsg) return;
    std::fprintf(stderr, "clipvane: %s\n", message.toLocal8Bit().constData());
}

/// A weather vane's arrow over the clips of a timeline: the pictures of packaging/icons, built into
/// the program.
QIcon applicationIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QString(":/icons/clipvane-%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

}  // namespace

void ignoreWriteSignals() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

void prepareToolkit() {
    qInstallMessageHandler(reportFatal);
    qunsetenv("QT_STYLE_OVERRIDE");
    QApplication::setDesktopSettingsAware(false);
    // The toolkit's file dialog stores settings; this sends them nowhere.
    for (const auto format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, "/dev/null");
    }
}

void dressApplication(QApplication& application) {
    application.setApplicationName("Clipvane");
    application.setDesktopFileName("clipvane");
    application.setWindowIcon(applicationIcon());
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): it belongs to the application now.
    application.setStyle(new ClipvaneStyle);
    const QPalette palette = application.style()->standardPalette();
    application.setPalette(palette);
    application.setFont(systemFont(13));
    QToolTip::setFont(systemFont(13));
    QToolTip::setPalette(palette);
    installAccessibility();
    new FocusRing(application);
}

}  // namespace clipvane
