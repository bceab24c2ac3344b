#include "ui/ApplicationIcon.h"

#include <QPainter>
#include <QPixmap>

#include "ui/Colours.h"

namespace clipvane {
namespace {

/// On a square of 32 by 32.
void paintIcon(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours::accent.darker(150));
    painter.drawRoundedRect(QRectF(1, 1, 30, 30), 7, 7);
    painter.setBrush(colours::sourceField);
    painter.drawRoundedRect(QRectF(5, 19, 9, 6), 1.5, 1.5);
    painter.setBrush(colours::reelField);
    painter.drawRoundedRect(QRectF(15, 19, 5, 6), 1.5, 1.5);
    painter.setBrush(colours::recordField);
    painter.drawRoundedRect(QRectF(21, 19, 6, 6), 1.5, 1.5);
    painter.setBrush(colours::white);
    painter.drawPolygon(
        QPolygonF{{5, 10}, {19, 10}, {19, 6}, {27, 11.5}, {19, 17}, {19, 13}, {5, 13}});
}

}  // namespace

QIcon applicationIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.scale(size / 32.0, size / 32.0);
        paintIcon(painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace clipvane
