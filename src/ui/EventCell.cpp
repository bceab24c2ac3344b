// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/EventCell.h"

#include <QAbstractItemView>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "ui/Colours.h"
#include "ui/EventTableView.h"
#include "ui/Fonts.h"
#include "ui/Text.h"

namespace clipvane {

namespace {

/// The dimmest of the fields' colours would be hard to read on the blue of a selected row.
QColor textColour(const QModelIndex& index, bool selected) {
    const auto colour = index.data(Qt::ForegroundRole).value<QColor>();
    return selected && colour == colours::secondaryText ? colours::secondaryTextOnSelection
                                                        : colour;
}

constexpr char16_t firstPlain = u' ';
constexpr char16_t lastPlain = u'~';

/// Whether `text` is printable ASCII, which the cells' font sets character by character.
bool isPlain(const QString& text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c >= firstPlain && c <= lastPlain; });
}

double widestPlainCharacter(const QFont& font) {
    const QFontMetricsF metrics(font);
    double widest = 0;
    for (char16_t c = firstPlain; c <= lastPlain; ++c) {
        widest = std::max(widest, metrics.horizontalAdvance(QChar(c)));
    }
    return widest;
}

}  // namespace

EventCell::EventCell(QObject* parent)
    : QStyledItemDelegate(parent),
      labelFont(monospacedFont(14, QFont::Medium)),
      widestPlain(widestPlainCharacter(labelFont)) {}

QString EventCell::shownText(const QModelIndex& index, int width) const {
    const QString line = displayLine(index.data().toString());
    const int room = width - 2 * padding;
    // Most texts are too short to need measuring, which costs a fifth of drawing them.
    if (isPlain(line) && static_cast<double>(line.size()) * widestPlain <= room) return line;
    return QFontMetrics(labelFont).elidedText(line, Qt::ElideMiddle, room);
}

void EventCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const {
    const QFontMetrics metrics(labelFont);
    const QRect rect = option.rect;
    const int y = rect.top() + (rect.height() - metrics.height()) / 2 + metrics.ascent();
    painter->setFont(labelFont);
    painter->setPen(textColour(index, option.state & QStyle::State_Selected));
    painter->drawText(QPoint(rect.left() + padding, y), shownText(index, rect.width()));
}

QSize EventCell::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    const QString line = displayLine(index.data().toString());
    return {QFontMetrics(labelFont).horizontalAdvance(line) + 2 * padding + 1,
            EventTableView::rowHeight};
}

bool EventCell::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                          const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QString text = index.data().toString();
    if (index.isValid() && shownText(index, option.rect.width()) != displayLine(text)) {
        QToolTip::showText(event->globalPos(), toolTipText(text), view->viewport(), option.rect);
    } else {
        QToolTip::hideText();
    }
    return true;
}

}  // namespace clipvane
