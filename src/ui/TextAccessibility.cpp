// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/TextAccessibility.h"

#include <QAccessibleWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

namespace clipvane {
namespace {

using Boundary = QAccessible::TextBoundaryType;

class AccessibleText : public QAccessibleWidget,
                       public QAccessibleTextInterface,
                       public QAccessibleEditableTextInterface {
  public:
    explicit AccessibleText(QPlainTextEdit* view)
        : QAccessibleWidget(view, QAccessible::EditableText), view(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface) {
            return static_cast<QAccessibleEditableTextInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiLine = true;
        state.selectableText = true;
        state.readOnly = view->isReadOnly();
        state.editable = !state.readOnly;
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? view->toPlainText() : QAccessibleWidget::text(kind);
    }

    // Text. Offsets count characters and line ends, as the document's positions do.

    int characterCount() const override { return view->document()->characterCount() - 1; }
    QString text(int start, int end) const override {
        return range(start, end).selectedText().replace(QChar::ParagraphSeparator, QChar::LineFeed);
    }
    QString textAtOffset(int offset, Boundary type, int* start, int* end) const override {
        return part(QAccessible::qAccessibleTextBoundaryHelper(cursorAt(offset), type), start, end);
    }
    QString textBeforeOffset(int offset, Boundary type, int* start, int* end) const override {
        int begin = 0;
        int past = 0;
        textAtOffset(offset, type, &begin, &past);
        if (begin == 0) return part({0, 0}, start, end);
        return textAtOffset(begin - 1, type, start, end);
    }
    QString textAfterOffset(int offset, Boundary type, int* start, int* end) const override {
        int begin = 0;
        int past = 0;
        textAtOffset(offset, type, &begin, &past);
        for (int next = past; next < characterCount(); ++next) {  // skips what lies between two
            textAtOffset(next, type, &begin, &past);
            if (begin >= next) return part({begin, past}, start, end);
        }
        return part({characterCount(), characterCount()}, start, end);
    }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

    // Places, on the screen.

    QRect characterRect(int offset) const override {
        if (offset < 0 || offset > characterCount()) return {};
        QRect place = view->cursorRect(cursorAt(offset));
        const QRect next = view->cursorRect(cursorAt(offset + 1));
        // The character after the last one of a line stands on the next line.
        place.setWidth(next.top() == place.top() && next.left() > place.left()
                           ? next.left() - place.left()
                           : view->fontMetrics().horizontalAdvance(text(offset, offset + 1)));
        return place.translated(view->viewport()->mapToGlobal(QPoint()));
    }
    int offsetAtPoint(const QPoint& point) const override {
        return view->cursorForPosition(view->viewport()->mapFromGlobal(point)).position();
    }
    void scrollToSubstring(int start, int) override {
        const QTextBlock block = cursorAt(start).block();
        const int line = block.layout()->lineForTextPosition(start - block.position()).lineNumber();
        view->verticalScrollBar()->setValue(block.firstLineNumber() + std::max(line, 0));
    }

    // Caret and selection.

    int cursorPosition() const override { return view->textCursor().position(); }
    void setCursorPosition(int position) override { view->setTextCursor(cursorAt(position)); }
    int selectionCount() const override { return view->textCursor().hasSelection() ? 1 : 0; }
    void selection(int, int* start, int* end) const override {
        *start = view->textCursor().selectionStart();
        *end = view->textCursor().selectionEnd();
    }
    void setSelection(int, int start, int end) override { view->setTextCursor(range(start, end)); }
    void addSelection(int start, int end) override { view->setTextCursor(range(start, end)); }
    void removeSelection(int) override { view->setTextCursor(cursorAt(cursorPosition())); }

    // Changes, which count as typed.

    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void replaceText(int start, int end, const QString& text) override {
        if (!view->isReadOnly()) range(start, end).insertText(text);
    }

  private:
    QTextCursor cursorAt(int offset) const {
        QTextCursor cursor(view->document());
        cursor.setPosition(std::clamp(offset, 0, characterCount()));
        return cursor;
    }
    QTextCursor range(int start, int end) const {
        QTextCursor cursor = cursorAt(start);
        cursor.setPosition(std::clamp(end, 0, characterCount()), QTextCursor::KeepAnchor);
        return cursor;
    }
    QString part(const QPair<int, int>& bounds, int* start, int* end) const {
        *start = bounds.first;
        *end = bounds.second;
        return text(bounds.first, bounds.second);
    }

    QPlainTextEdit* view;
};

}  // namespace

QAccessibleInterface* accessibleText(QPlainTextEdit* view) {
    return new AccessibleText(view);
}

}  // namespace clipvane
