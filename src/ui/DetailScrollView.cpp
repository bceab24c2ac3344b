// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/DetailScrollView.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>

#include "ui/CommentsBlockView.h"
#include "ui/Geometry.h"

namespace clipvane {
namespace {

/// Typing is not among them: the editor has a signal for it. A click puts the caret where the user
/// sees it.
bool movesCaret(const QEvent& event) {
    if (event.type() == QEvent::FocusIn) {
        return static_cast<const QFocusEvent&>(event).reason() != Qt::MouseFocusReason;
    }
    return event.type() == QEvent::Resize;
}

}  // namespace

DetailScrollView::DetailScrollView(QWidget* detailStack, CommentsBlockView* comments)
    : comments(comments) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWidget(detailStack);
    detailStack->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);

    CommentsView* editor = comments->textView;
    editor->installEventFilter(this);
    connect(editor, &QPlainTextEdit::cursorPositionChanged, this, &DetailScrollView::showCaret);
    connect(editor, &QPlainTextEdit::textChanged, this, &DetailScrollView::showCaret);
    scrollOnKey(Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub);
    scrollOnKey(Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd);
}

void DetailScrollView::showTop() {
    verticalScrollBar()->setValue(0);
}

void DetailScrollView::scrollOnKey(Qt::Key key, QAbstractSlider::SliderAction action) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::ALT | key), this);
    connect(shortcut, &QShortcut::activated, verticalScrollBar(),
            [this, action] { verticalScrollBar()->triggerAction(action); });
}

void DetailScrollView::resizeEvent(QResizeEvent* event) {
    widget()->resize(qRound(detailStackWidth(viewport()->width())), detailStackHeight);
    QScrollArea::resizeEvent(event);
    showCaret();
}

bool DetailScrollView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == comments->textView && movesCaret(*event)) {
        // Only after the editor has handled it.
        QTimer::singleShot(0, this, &DetailScrollView::showCaret);
    }
    return QScrollArea::eventFilter(watched, event);
}

void DetailScrollView::showCaret() {
    CommentsView& editor = *comments->textView;
    if (window()->focusWidget() != &editor) return;
    editor.ensureCursorVisible();
    // That takes the caret to be in front of the text that is being composed.
    QScrollBar& lines = *editor.verticalScrollBar();
    while (editor.cursorRect().bottom() >= editor.viewport()->height() &&
           lines.value() < lines.maximum()) {
        lines.setValue(lines.value() + 1);
    }
    // While a button is down nothing moves more than it must: a second click may follow.
    if (QGuiApplication::mouseButtons() == Qt::NoButton) showRows(comments->geometry());
    const QRect caret = editor.cursorRect();
    showRows({editor.viewport()->mapTo(widget(), caret.topLeft()), caret.size()});
}

void DetailScrollView::showRows(const QRect& rect) {
    QScrollBar& bar = *verticalScrollBar();
    if (rect.bottom() >= bar.value() + viewport()->height()) {
        bar.setValue(rect.bottom() + 1 - viewport()->height());
    }
    if (rect.top() < bar.value()) bar.setValue(rect.top());
}

}  // namespace clipvane
