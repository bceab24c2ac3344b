// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "window/WindowUnderLoad.h"

#include <malloc.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include <clipvane/Fatal.h>
#include "ui/CommentsView.h"
#include "ui/EventTableView.h"
#include "ui/FrameRatePopup.h"

namespace clipvane::benchmark {
namespace {

using Clock = std::chrono::steady_clock;

std::size_t heapInUse() {
    const auto info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

void press(QWidget& widget, int key, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &event);
    }
}

}  // namespace

WindowUnderLoad::WindowUnderLoad() {
    showWindow();
    window()->resize(1440, 860);
    QCoreApplication::processEvents();
}

template <class Widget>
Widget& WindowUnderLoad::find() {
    for (auto* widget : window()->findChildren<QWidget*>()) {
        if (auto* found = dynamic_cast<Widget*>(widget)) return *found;
    }
    fatal("the window lacks a part");
}

Milliseconds WindowUnderLoad::painted(const std::function<void()>& step) {
    const auto start = Clock::now();
    step();
    QCoreApplication::processEvents();
    return Clock::now() - start;
}

void WindowUnderLoad::whileBusy(const std::function<void()>& work) {
    work();
    heapThen = heapInUse();
    imported = Clock::now();
}

/// Opening ends with an alert: by then the list is filled, but not yet painted.
void WindowUnderLoad::runAlert(const Alert&) {
    QCoreApplication::processEvents();
    refill.time = Clock::now() - imported;
    const auto grown = static_cast<double>(heapInUse()) - static_cast<double>(heapThen);
    refill.bytesPerRow = grown / static_cast<double>(document().events.size());
}

WindowUnderLoad::Refill WindowUnderLoad::open(const std::filesystem::path& path) {
    file = path;
    openTimeline();
    return refill;
}

Milliseconds WindowUnderLoad::pressInTable(Qt::Key key) {
    auto& table = find<EventTableView>();
    return painted([&] { press(table, key); });
}

Milliseconds WindowUnderLoad::removeFirst() {
    find<EventTableView>().selectRow(0);
    QCoreApplication::processEvents();
    return painted([&] { removeSelectedEvent(); });
}

Milliseconds WindowUnderLoad::changeRate(const QString& title) {
    auto& popup = find<FrameRatePopup>();
    popup.setCurrentIndex(popup.findText(title));
    return painted([&] { fpsChanged(); });
}

void WindowUnderLoad::setComment(const QString& text) {
    auto& editor = find<CommentsView>();
    QGuiApplication::clipboard()->setText(text);
    editor.selectAll();
    editor.paste();
    auto cursor = editor.textCursor();
    cursor.setPosition(static_cast<int>(text.size() / 2));
    editor.setTextCursor(cursor);
    QCoreApplication::processEvents();
}

Milliseconds WindowUnderLoad::typeInComment() {
    auto& editor = find<CommentsView>();
    return painted([&] { press(editor, Qt::Key_X, "x"); });
}

}  // namespace clipvane::benchmark
