// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/TextLabel.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>

#include "ui/Text.h"

namespace clipvane {
namespace {

/// Whether the ink ends within `width`; the blank after the last letter may be cut off.
bool fits(const QString& line, const QFont& font, int width) {
    return QFontMetricsF(font).tightBoundingRect(line).right() <= width;
}

QFont withSpacing(QFont font, int percent) {
    font.setLetterSpacing(QFont::PercentageSpacing, percent);
    return font;
}

}  // namespace

TextLabel::TextLabel(const QString& text, const QFont& font, const QColor& colour, QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setFont(font);
    setColour(colour);
    setText(text);
}

void TextLabel::setColour(const QColor& colour) {
    QPalette own = palette();
    own.setColor(QPalette::WindowText, colour);
    setPalette(own);
}

QColor TextLabel::colour() const {
    return palette().color(QPalette::WindowText);
}

void TextLabel::setElideMode(Qt::TextElideMode newMode) {
    mode = newMode;
    update();
}

void TextLabel::setMaximumLines(int count) {
    lineLimit = count;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(count > 1);
    setSizePolicy(policy);
    updateGeometry();
}

bool TextLabel::isElided() const {
    return lines(width()).elided;
}

int TextLabel::heightForWidth(int width) const {
    return static_cast<int>(lines(width).texts.size()) * fontMetrics().lineSpacing();
}

QSize TextLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(displayLine(text())) + 1, fontMetrics().height()};
}

QSize TextLabel::minimumSizeHint() const {
    return {0, fontMetrics().height()};
}

TextLabel::Lines TextLabel::lines(int width) const {
    const QString line = displayLine(text());
    Lines result;
    qsizetype start = 0;
    if (lineLimit > 1) {
        QTextLayout layout(line, font());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine part = layout.createLine();
             part.isValid() && result.texts.size() < lineLimit - 1; part = layout.createLine()) {
            part.setLineWidth(width);
            result.texts.append(line.mid(part.textStart(), part.textLength()).trimmed());
            start = part.textStart() + part.textLength();
        }
        layout.endLayout();
        if (start >= line.size() && !result.texts.isEmpty()) return result;
    }
    const QString rest = start == 0 ? line : line.mid(start).trimmed();
    result.font = fittingFont(rest, width);
    result.elided = !result.font.has_value();
    result.texts.append(result.elided ? fontMetrics().elidedText(rest, mode, width) : rest);
    return result;
}

std::optional<QFont> TextLabel::fittingFont(const QString& line, int width) const {
    const QFont usual = withSpacing(font(), 100);
    if (fits(line, usual, width)) return usual;
    if (leastSpacing == 100 || !fits(line, withSpacing(font(), leastSpacing), width)) return {};
    int percent = 99;
    while (percent > leastSpacing && !fits(line, withSpacing(font(), percent), width)) --percent;
    return withSpacing(font(), percent);
}

bool TextLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QLabel::event(event);
    if (isElided()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipText(text()), this);
    } else {
        QToolTip::hideText();
    }
    return true;
}

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(colour());
    const auto [texts, font, elided] = lines(width());
    if (font) painter.setFont(*font);
    const QFontMetrics metrics = painter.fontMetrics();
    const int spacing = metrics.lineSpacing();
    int y = baseline;
    if (y < 0) {
        const int total = static_cast<int>(texts.size()) * spacing;
        y = (height() - total) / 2 + (spacing - metrics.height()) + metrics.ascent();
    }
    const auto left = [&](const QString& line) {
        if (!(alignment() & Qt::AlignHCenter)) return 0;
        return std::max((width() - metrics.horizontalAdvance(line)) / 2, 0);
    };
    for (const QString& line : texts) {
        painter.drawText(QPoint(left(line), y), line);
        y += spacing;
    }
}

}  // namespace clipvane
