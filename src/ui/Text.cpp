// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/Text.h"

#include <QFontMetrics>
#include <QToolTip>
#include <algorithm>

namespace clipvane {
namespace {

constexpr qsizetype displayLimit = 1024;
constexpr qsizetype toolTipLimit = 4096;
constexpr int toolTipWidth = 420;  ///< of a text that does not fit on one such line
constexpr int longestWord = 30;    ///< without a place to break, in a tool tip
constexpr char16_t zeroWidthSpace = 0x200b;

/// The two ends of `text`, `limit` characters in all. A surrogate pair is not split.
QString shortened(const QString& text, qsizetype limit) {
    if (text.size() <= limit) return text;
    qsizetype head = limit / 2;
    qsizetype tail = text.size() - limit / 2;
    if (text[head - 1].isHighSurrogate()) --head;
    if (text[tail].isLowSurrogate()) ++tail;
    return text.left(head) + u'…' + text.mid(tail);
}

bool breaksLine(QChar c) {
    return c.unicode() < 0x20 || (c.unicode() >= 0x7f && c.unicode() < 0xa0) ||
           c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// `text` with places to break in long words: clip names have no blanks.
QString breakable(const QString& text) {
    QString result;
    int length = 0;  // of the word so far
    for (const QChar c : text) {
        if (length >= longestWord && !c.isLowSurrogate() && !c.isMark()) {
            result += QChar(zeroWidthSpace);
        }
        result += c;
        length = c.isSpace() ? 0 : length + 1;
    }
    return result;
}

}  // namespace

QString displayLine(const QString& text) {
    QString line = shortened(text, displayLimit);
    std::replace_if(line.begin(), line.end(), breaksLine, u' ');
    return line;
}

QString toolTipText(const QString& text) {
    const QString shown = shortened(text, toolTipLimit);
    const QSize size = QFontMetrics(QToolTip::font()).size(0, shown);
    if (size.width() <= toolTipWidth) {
        return "<p style='white-space:pre'>" + shown.toHtmlEscaped() + "</p>";
    }
    return QString("<table width='%1'><tr><td>").arg(toolTipWidth) +
           "<p style='white-space:pre-wrap'>" + breakable(shown).toHtmlEscaped() +
           "</p></td></tr></table>";
}

}  // namespace clipvane
