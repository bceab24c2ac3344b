// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/ControlPainter.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "ui/Colours.h"

namespace clipvane {
namespace {

constexpr double controlRadius = 7;
constexpr double fieldRadius = 6;

struct Surface {
    QColor top;
    QColor bottom;
    QColor edge;
};

Surface surface(QStyle::State state, bool prominent) {
    const bool pressed = state & (QStyle::State_Sunken | QStyle::State_On);
    const bool hovered = state & QStyle::State_MouseOver;
    if (!(state & QStyle::State_Enabled)) {
        return {colours::controlBottom, colours::controlBottom, colours::panelEdge};
    }
    if (prominent) {
        const QColor top = pressed   ? colours::accentPressed
                           : hovered ? colours::accentHover
                                     : colours::accent;
        return {top, pressed ? top : top.darker(112), colours::accentEdge};
    }
    if (pressed) return {colours::controlPressed, colours::controlPressed, colours::controlEdge};
    if (hovered)
        return {colours::controlHover, colours::control, colours::controlEdge.lighter(125)};
    return {colours::control, colours::controlBottom, colours::controlEdge};
}

QPen line(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

bool hasKeyboardFocus(QStyle::State state) {
    return (state & QStyle::State_HasFocus) && (state & QStyle::State_KeyboardFocusChange);
}

}  // namespace

void paintBox(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill,
              const QColor& edge) {
    if (radius == 0) {  // a path would soften the corners
        painter.fillRect(rect, edge);
        painter.fillRect(rect.adjusted(1, 1, -1, -1), fill);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line(edge, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line(colours::focusRing, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), radius, radius);
    painter.restore();
}

void paintControl(QPainter& painter, const QStyleOption& option, bool prominent) {
    const Surface look = surface(option.state, prominent);
    const QRectF rect = option.rect;
    QLinearGradient fill(rect.topLeft(), rect.bottomLeft());
    fill.setColorAt(0, look.top);
    fill.setColorAt(1, look.bottom);
    paintBox(painter, rect, controlRadius, fill, look.edge);
    if (hasKeyboardFocus(option.state)) paintFocusRing(painter, rect, controlRadius);
}

void paintField(QPainter& painter, const QStyleOption& option, const QColor& fill,
                const QColor& edge) {
    paintBox(painter, option.rect, fieldRadius, fill, edge);
    if (option.state & QStyle::State_HasFocus) {
        paintFocusRing(painter, option.rect, fieldRadius);
    }
}

void paintPopupArrows(QPainter& painter, const QRectF& rect, const QColor& colour) {
    constexpr double halfWidth = 3.5;
    constexpr double height = 3.5;
    constexpr double distance = 3;
    const QPointF c = rect.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line(colour, 1.5));
    for (const double up : {-1.0, 1.0}) {
        const double base = c.y() + up * distance;
        painter.drawPolyline(QPolygonF{
            {c.x() - halfWidth, base}, {c.x(), base + up * height}, {c.x() + halfWidth, base}});
    }
    painter.restore();
}

void paintCheckMark(QPainter& painter, const QRectF& rect, const QColor& colour) {
    const QPointF c = rect.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line(colour, 1.8));
    painter.drawPolyline(QPolygonF{
        {c.x() - 4.5, c.y() + 0.5}, {c.x() - 1.5, c.y() + 3.5}, {c.x() + 4.5, c.y() - 3.5}});
    painter.restore();
}

void paintScrollThumb(QPainter& painter, const QStyleOption& option, const QRect& rect) {
    constexpr double thickness = 6;
    const bool live = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    QRectF thumb = rect;
    if (option.state & QStyle::State_Horizontal) {
        thumb = {thumb.left() + 2, thumb.center().y() - thickness / 2, thumb.width() - 4,
                 thickness};
    } else {
        thumb = {thumb.center().x() - thickness / 2, thumb.top() + 2, thickness,
                 thumb.height() - 4};
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(live ? colours::scrollThumbHover : colours::scrollThumb);
    painter.drawRoundedRect(thumb, thickness / 2, thickness / 2);
    painter.restore();
}

}  // namespace clipvane
