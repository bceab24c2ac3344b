// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FrameRatePopup.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include <clipvane/FrameRate.h>
#include "ui/Fonts.h"
#include "ui/Text.h"

namespace clipvane {
namespace {

QString title(double fps) {
    return toQt(formatFPS(fps) + " fps");
}

constexpr std::array keysThatOpen{Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,  Qt::Key_Right,
                                  Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F4};

bool isKeyEvent(const QEvent& event) {
    return event.type() == QEvent::ShortcutOverride || event.type() == QEvent::KeyPress ||
           event.type() == QEvent::KeyRelease;
}

}  // namespace

FrameRatePopup::FrameRatePopup(QWidget* parent) : QComboBox(parent) {
    setAccessibleName("Global FPS");
    setFont(systemFont(15, QFont::Medium));
    setFocusPolicy(Qt::TabFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setMaxVisibleItems(30);
    view()->setAccessibleName("Frame rates");
    for (const double fps : standardFPSValues) addItem(title(fps), fps);
    connect(this, &QComboBox::currentIndexChanged, this, &FrameRatePopup::selectShown);
    view()->installEventFilter(this);
}

/// Assistive technology reads the closed list, too. Its selected entry has to be the one that the
/// pop-up shows.
void FrameRatePopup::selectShown() {
    view()->selectionModel()->select(model()->index(currentIndex(), modelColumn()),
                                     QItemSelectionModel::ClearAndSelect);
}

bool FrameRatePopup::eventFilter(QObject* watched, QEvent* event) {
    if (watched == view() && event->type() == QEvent::Hide) selectShown();
    // The toolkit chooses before it sends the key itself. Where assistive technology listens to
    // keys, that one comes late, and would choose again in the list that it has closed.
    if (watched == view() && isKeyEvent(*event) && !view()->isVisible()) return true;
    return QComboBox::eventFilter(watched, event);
}

void FrameRatePopup::showRate(double fps) {
    const QString wanted = title(fps);
    const int known = findText(wanted, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (known < 0) addItem(wanted, fps);
    setCurrentIndex(known < 0 ? count() - 1 : known);
}

void FrameRatePopup::keyPressEvent(QKeyEvent* event) {
    if (std::ranges::count(keysThatOpen, event->key()) > 0) {
        showPopup();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FrameRatePopup::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace clipvane
