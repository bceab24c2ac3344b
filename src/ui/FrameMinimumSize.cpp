// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FrameMinimumSize.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace clipvane {

FrameMinimumSize::FrameMinimumSize(QWidget* window, const QSize& minimum)
    : QObject(window), window(window), minimum(minimum) {
    window->installEventFilter(this);
    apply();
}

void FrameMinimumSize::apply() {
    if (const QWindow* handle = window->windowHandle()) frame = frame | handle->frameMargins();
    window->setMinimumSize(minimum.shrunkBy(frame));
}

bool FrameMinimumSize::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowActivate:
        case QEvent::WindowStateChange:
            apply();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace clipvane
