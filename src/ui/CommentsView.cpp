// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/CommentsView.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <utility>

#include "ui/Colours.h"
#include "ui/Fonts.h"
#include "ui/Text.h"

namespace clipvane {
namespace {

/// The toolkit's text of a document, where a paragraph separator stands between two lines.
QString withLineFeeds(QString text) {
    return std::move(text.replace(QChar::ParagraphSeparator, QChar::LineFeed));
}

/// Whether a line may break at `c`: at a blank, unless it is a no-break one.
bool endsWord(QChar c) {
    return c.isSpace() && c.decompositionTag() != QChar::NoBreak;
}

/// The length of the longest run in which no line may break.
qsizetype longestWord(const QString& text) {
    qsizetype longest = 0;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && !endsWord(text[i])) continue;
        longest = std::max(longest, i - start);
        start = i + 1;
    }
    return longest;
}

}  // namespace

CommentsView::CommentsView(QWidget* parent) : QPlainTextEdit(parent) {
    setAccessibleName("Comments");
    setFont(systemFont(16));
    QPalette own = palette();
    own.setColor(QPalette::Base, colours::editor);
    own.setColor(QPalette::Text, colours::text);
    setPalette(own);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setEditable(false);
}

void CommentsView::setEditable(bool editable) {
    if (editable == !isReadOnly()) return;
    setReadOnly(!editable);
    setFocusPolicy(editable ? Qt::StrongFocus : Qt::NoFocus);
    setPlaceholderText(editable ? QString() : "Select an event to comment on it");
    update();  // the edge
}

void CommentsView::showComments(const UUID& id, std::string_view comments) {
    setEditable(true);
    if (shownEvent == id) return;
    shownEvent = id;
    setText(toQt(comments));
}

void CommentsView::showNothing() {
    setEditable(false);
    shownEvent.reset();
    setText({});
}

void CommentsView::setText(const QString& text) {
    const QSignalBlocker notTyping(this);
    clear();
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    wrapFor(text);
    setPlainText(text);
    shownRevision = document()->revision();
}

/// Wrapping a word of many lines takes the toolkit time with the square of its length, minutes for
/// a megabyte. After the first such word lines break anywhere, until another comment is shown.
void CommentsView::wrapFor(const QString& text) {
    constexpr qsizetype limit = 4000;
    if (wordWrapMode() == QTextOption::WrapAnywhere || longestWord(text) <= limit) return;
    setWordWrapMode(QTextOption::WrapAnywhere);
}

bool CommentsView::isEdited() const {
    return !onlyComposing && document()->revision() != shownRevision;
}

std::string CommentsView::comments() const {
    return withLineFeeds(document()->toRawText()).toStdString();
}

void CommentsView::keyPressEvent(QKeyEvent* event) {
    // The toolkit would insert a line separator, which no timeline uses.
    if (event->matches(QKeySequence::InsertLineSeparator) && !isReadOnly()) {
        textCursor().insertBlock();
        ensureCursorVisible();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
    wrapFor(textCursor().block().text());
}

/// Composing raises the document's revision although no text has changed yet.
void CommentsView::inputMethodEvent(QInputMethodEvent* event) {
    const bool changesText = !event->commitString().isEmpty() || event->replacementLength() != 0 ||
                             textCursor().hasSelection();
    onlyComposing = !changesText && !isEdited();
    QPlainTextEdit::inputMethodEvent(event);
    if (onlyComposing) shownRevision = document()->revision();
    onlyComposing = false;
}

void CommentsView::focusOutEvent(QFocusEvent* event) {
    endComposing();
    QPlainTextEdit::focusOutEvent(event);
}

void CommentsView::endComposing() {
    const auto composed = [this] { return textCursor().block().layout()->preeditAreaText(); };
    if (composed().isEmpty()) return;
    QGuiApplication::inputMethod()->commit();
    // Not every input method does so, and the text would be lost when another event is shown.
    if (composed().isEmpty()) return;
    QInputMethodEvent typed;
    typed.setCommitString(composed());
    QCoreApplication::sendEvent(this, &typed);
    QGuiApplication::inputMethod()->reset();
}

void CommentsView::insertFromMimeData(const QMimeData* source) {
    wrapFor(source->text());
    QPlainTextEdit::insertFromMimeData(source);
}

QMimeData* CommentsView::createMimeDataFromSelection() const {
    auto* data = new QMimeData;
    data->setText(withLineFeeds(textCursor().selectedText()));
    return data;
}

}  // namespace clipvane
