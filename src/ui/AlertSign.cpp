// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/AlertSign.h"

#include <QPainter>

#include "ui/Colours.h"

namespace clipvane {

void paintAlertSign(QPainter& painter, const QRectF& rect, AlertSign sign) {
    constexpr double grid = 40;
    const bool warns = sign == AlertSign::warning;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / grid, rect.height() / grid);
    painter.setPen(Qt::NoPen);
    painter.setBrush(warns ? colours::warning : colours::accentHover);
    painter.drawRoundedRect(QRectF(0, 0, grid, grid), 9, 9);
    painter.setBrush(warns ? colours::window : colours::white);
    const double stem = warns ? 9 : 17;
    const double dot = warns ? 30 : 11.5;
    painter.drawRoundedRect(QRectF(18, stem, 4, 15), 2, 2);
    painter.drawEllipse(QPointF(20, dot), 2.6, 2.6);
    painter.restore();
}

}  // namespace clipvane
