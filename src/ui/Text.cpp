// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/Text.h"

#include <algorithm>

namespace clipvane {
namespace {

constexpr qsizetype displayLimit = 1024;
constexpr qsizetype toolTipLimit = 4096;

/// The two ends of `text`, `limit` characters in all, none of them half of a pair.
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

}  // namespace

QString displayLine(const QString& text) {
    QString line = shortened(text, displayLimit);
    std::replace_if(line.begin(), line.end(), breaksLine, u' ');
    return line;
}

QString toolTipText(const QString& text) {
    return "<p style='white-space:pre-wrap'>" + shortened(text, toolTipLimit).toHtmlEscaped() +
           "</p>";
}

}  // namespace clipvane
