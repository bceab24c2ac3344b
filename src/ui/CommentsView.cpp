#include "ui/CommentsView.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTextDocument>
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

}  // namespace

CommentsView::CommentsView(QWidget* parent) : QPlainTextEdit(parent) {
    setAccessibleName("Comments");
    setFont(systemFont(16));
    QPalette own = palette();
    own.setColor(QPalette::Base, colours::editor);
    own.setColor(QPalette::Text, colours::text);
    setPalette(own);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setReadOnly(true);
}

void CommentsView::showComments(const UUID& id, const std::string& comments) {
    setReadOnly(false);
    if (shownEvent == id) return;
    shownEvent = id;
    setText(toQt(comments));
}

void CommentsView::showNothing() {
    setReadOnly(true);
    shownEvent.reset();
    setText({});
}

void CommentsView::setText(const QString& text) {
    const QSignalBlocker notTyping(this);
    setPlainText(text);
    shownRevision = document()->revision();
}

bool CommentsView::isEdited() const {
    return document()->revision() != shownRevision;
}

std::string CommentsView::comments() const {
    return toUTF8(withLineFeeds(document()->toRawText()));
}

void CommentsView::keyPressEvent(QKeyEvent* event) {
    // The toolkit would put in a line separator, which no timeline knows.
    if (event->matches(QKeySequence::InsertLineSeparator) && !isReadOnly()) {
        textCursor().insertBlock();
        ensureCursorVisible();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

QMimeData* CommentsView::createMimeDataFromSelection() const {
    auto* data = new QMimeData;
    data->setText(withLineFeeds(textCursor().selectedText()));
    return data;
}

}  // namespace clipvane
