// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FocusRing.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace clipvane {
namespace {

/// Also held down while clicking.
bool isModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_AltGr || key == Qt::Key_Meta;
}

}  // namespace

FocusRing::FocusRing(QApplication& application) : QObject(&application) {
    application.installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            if (!isModifier(static_cast<QKeyEvent*>(event)->key())) show(true);
            break;
        case QEvent::MouseButtonPress:
        case QEvent::TouchBegin:
            show(false);
            break;
        case QEvent::Show:  // which has just cleared the flag
            if (auto* widget = qobject_cast<QWidget*>(watched); widget && widget->isWindow()) {
                widget->setAttribute(Qt::WA_KeyboardFocusChange, shown);
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::show(bool now) {
    if (shown == now) return;
    shown = now;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->setAttribute(Qt::WA_KeyboardFocusChange, shown);
        window->update();
    }
    // That leaves out what scrolls, which has an opaque surface of its own.
    if (auto* area = qobject_cast<QAbstractScrollArea*>(QApplication::focusWidget())) {
        area->viewport()->update();
    }
}

}  // namespace clipvane
