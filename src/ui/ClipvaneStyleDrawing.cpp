// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "ui/ClipvaneStyle.h"
#include "ui/Colours.h"
#include "ui/ControlPainter.h"

namespace clipvane {
namespace {

constexpr int arrowsWidth = 34;
constexpr int textMargin = 11;

const QColor& dimmed(const QColor& colour, QStyle::State state) {
    return state & QStyle::State_Enabled ? colour : colours::disabledText;
}

}  // namespace

void ClipvaneStyle::drawComboBox(const QStyleOptionComboBox& option, QPainter& painter) const {
    paintControl(painter, option, false);
    QRect arrows = option.rect;
    arrows.setLeft(arrows.right() - arrowsWidth + 1);
    paintPopupArrows(painter, arrows, dimmed(colours::secondaryText, option.state));
}

QRect ClipvaneStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl subControl, const QWidget* widget) const {
    if (control == CC_ComboBox && subControl == SC_ComboBoxEditField) {
        return option->rect.adjusted(textMargin - 2, 2, -arrowsWidth, -2);
    }
    if (control != CC_ScrollBar) {
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
    // A bar without arrows: a groove, and the thumb between two pages.
    const auto& bar = *static_cast<const QStyleOptionSlider*>(option);
    const bool horizontal = bar.orientation == Qt::Horizontal;
    const int length = horizontal ? bar.rect.width() : bar.rect.height();
    const qint64 range = static_cast<qint64>(bar.maximum) - bar.minimum;
    int thumb = length;
    if (range > 0) {
        const int shortest = pixelMetric(PM_ScrollBarSliderMin, option, widget);
        thumb =
            static_cast<int>(static_cast<qint64>(bar.pageStep) * length / (range + bar.pageStep));
        thumb = std::clamp(thumb, std::min(shortest, length), length);
    }
    const int start = sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                              length - thumb, bar.upsideDown);
    const auto part = [&](int from, int size) {
        const QRect along = horizontal ? QRect(from, 0, size, bar.rect.height())
                                       : QRect(0, from, bar.rect.width(), size);
        return visualRect(bar.direction, bar.rect, along.translated(bar.rect.topLeft()));
    };
    switch (subControl) {
        case SC_ScrollBarGroove:
            return bar.rect;
        case SC_ScrollBarSlider:
            return part(start, thumb);
        case SC_ScrollBarSubPage:
            return part(0, start);
        case SC_ScrollBarAddPage:
            return part(start + thumb, length - start - thumb);
        default:
            return {};
    }
}

void ClipvaneStyle::drawScrollBar(const QStyleOptionSlider& option, QPainter& painter,
                                  const QWidget* widget) const {
    // With nothing to scroll the bar keeps its place and hides the thumb.
    if (option.maximum <= option.minimum) return;
    QStyleOption thumb = option;
    if (option.orientation == Qt::Horizontal) thumb.state |= State_Horizontal;
    if (option.activeSubControls != SC_ScrollBarSlider) {
        thumb.state &= ~(State_MouseOver | State_Sunken);
    }
    paintScrollThumb(painter, thumb,
                     subControlRect(CC_ScrollBar, &option, SC_ScrollBarSlider, widget));
}

void ClipvaneStyle::drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter) const {
    const QRect rect = option.rect;
    painter.fillRect(rect, colours::tableHeader);
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, colours::panelEdge);
    painter.fillRect(rect.right(), rect.top() + 7, 1, rect.height() - 14, colours::headerDivider);
}

void ClipvaneStyle::drawHeaderLabel(const QStyleOptionHeader& option, QPainter& painter) const {
    painter.setPen(colours::secondaryText);
    const QString text =
        option.fontMetrics.elidedText(option.text, Qt::ElideRight, option.rect.width());
    painter.drawText(option.rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

void ClipvaneStyle::drawMenuItem(const QStyleOptionMenuItem& option, QPainter& painter) const {
    const QRect rect = option.rect;
    painter.fillRect(rect, colours::menu);
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        painter.fillRect(rect.left() + 8, rect.center().y(), rect.width() - 16, 1,
                         colours::menuEdge);
        return;
    }
    const bool enabled = option.state & State_Enabled;
    const bool chosen = enabled && (option.state & State_Selected);
    if (chosen) {
        paintBox(painter, rect.adjusted(4, 1, -4, -1), 4, colours::accent, colours::accent);
    }
    if (option.checked) {
        paintCheckMark(painter, QRect(rect.left() + 6, rect.top(), 24, rect.height()),
                       chosen ? colours::white : colours::focusRing);
    }
    painter.save();
    painter.setFont(option.font);
    painter.setPen(chosen ? colours::white : dimmed(colours::text, option.state));
    const QRect text = rect.adjusted(32, 0, -12, 0);
    constexpr int flags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextHideMnemonic;
    const auto tab = option.text.indexOf('\t');
    painter.drawText(text, flags | Qt::AlignLeft, option.text.left(tab));
    if (tab >= 0) {
        painter.setPen(chosen ? colours::white : colours::secondaryText);
        painter.drawText(text, flags | Qt::AlignRight, option.text.mid(tab + 1));
    }
    painter.restore();
}

}  // namespace clipvane
