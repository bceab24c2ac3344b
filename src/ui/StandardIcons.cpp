// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/StandardIcons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "ui/AlertSign.h"
#include "ui/Colours.h"

namespace clipvane {
namespace {

// All drawings lie on a grid of 16 by 16, in the pen's colour.

constexpr double grid = 16;

void arrow(QPainter& painter, double degrees) {
    painter.translate(8, 8);
    painter.rotate(degrees);
    painter.drawLine(QPointF(-5, 0), QPointF(5, 0));
    painter.drawPolyline(QPolygonF{{-0.5, -4.5}, {-5, 0}, {-0.5, 4.5}});
}

void back(QPainter& painter) {
    arrow(painter, 0);
}

void forward(QPainter& painter) {
    arrow(painter, 180);
}

void up(QPainter& painter) {
    arrow(painter, 90);
}

void folder(QPainter& painter) {
    QPainterPath outline({1.5, 3.5});
    for (const QPointF& corner : {QPointF(6, 3.5), QPointF(7.5, 5), QPointF(14.5, 5),
                                  QPointF(14.5, 13), QPointF(1.5, 13)}) {
        outline.lineTo(corner);
    }
    outline.closeSubpath();
    painter.drawPath(outline);
}

void filledFolder(QPainter& painter) {
    painter.setPen(QPen(colours::accentEdge, 1));
    painter.setBrush(colours::accent);
    folder(painter);
}

void newFolder(QPainter& painter) {
    folder(painter);
    painter.drawLine(QPointF(8, 6.8), QPointF(8, 11.2));
    painter.drawLine(QPointF(5.8, 9), QPointF(10.2, 9));
}

void file(QPainter& painter) {
    painter.drawPolygon(QPolygonF{{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}});
    painter.drawPolyline(QPolygonF{{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}});
}

void computer(QPainter& painter) {
    painter.drawRoundedRect(QRectF(1.5, 2.5, 13, 8.5), 1, 1);
    painter.drawLine(QPointF(8, 11), QPointF(8, 13.5));
    painter.drawLine(QPointF(5, 13.5), QPointF(11, 13.5));
}

void drive(QPainter& painter) {
    painter.drawRoundedRect(QRectF(1.5, 4.5, 13, 7), 1.5, 1.5);
    painter.drawLine(QPointF(11, 8), QPointF(12, 8));
}

void home(QPainter& painter) {
    painter.drawPolyline(QPolygonF{{1.5, 8}, {8, 2}, {14.5, 8}});
    painter.drawPolyline(QPolygonF{{3.5, 7}, {3.5, 13.5}, {12.5, 13.5}, {12.5, 7}});
}

void trash(QPainter& painter) {
    painter.drawLine(QPointF(2.5, 4), QPointF(13.5, 4));
    painter.drawLine(QPointF(6.5, 2), QPointF(9.5, 2));
    painter.drawPolyline(QPolygonF{{4, 4}, {4.7, 14}, {11.3, 14}, {12, 4}});
}

void listView(QPainter& painter) {
    for (const double x : {2.5, 9.5}) {
        for (const double y : {2.5, 9.5}) painter.drawRect(QRectF(x, y, 4, 4));
    }
}

void detailView(QPainter& painter) {
    for (const double y : {3.5, 8.0, 12.5}) painter.drawLine(QPointF(2, y), QPointF(14, y));
}

void notice(QPainter& painter) {
    paintAlertSign(painter, {0, 0, grid, grid}, AlertSign::notice);
}

void warning(QPainter& painter) {
    paintAlertSign(painter, {0, 0, grid, grid}, AlertSign::warning);
}

using Drawing = void (*)(QPainter&);

struct Drawn {
    QStyle::StandardPixmap which;
    Drawing drawing;
};

constexpr Drawn drawings[]{
    {QStyle::SP_ArrowBack, back},
    {QStyle::SP_ArrowForward, forward},
    {QStyle::SP_FileDialogToParent, up},
    {QStyle::SP_FileDialogNewFolder, newFolder},
    {QStyle::SP_FileDialogListView, listView},
    {QStyle::SP_FileDialogDetailedView, detailView},
    {QStyle::SP_DirIcon, filledFolder},
    {QStyle::SP_DirOpenIcon, filledFolder},
    {QStyle::SP_DirClosedIcon, filledFolder},
    {QStyle::SP_DirLinkIcon, filledFolder},
    {QStyle::SP_FileIcon, file},
    {QStyle::SP_FileLinkIcon, file},
    {QStyle::SP_DirHomeIcon, home},
    {QStyle::SP_ComputerIcon, computer},
    {QStyle::SP_DesktopIcon, computer},
    {QStyle::SP_DriveHDIcon, drive},
    {QStyle::SP_DriveNetIcon, drive},
    {QStyle::SP_DriveCDIcon, drive},
    {QStyle::SP_DriveDVDIcon, drive},
    {QStyle::SP_DriveFDIcon, drive},
    {QStyle::SP_TrashIcon, trash},
    {QStyle::SP_MessageBoxInformation, notice},
    {QStyle::SP_MessageBoxQuestion, notice},
    {QStyle::SP_MessageBoxWarning, warning},
    {QStyle::SP_MessageBoxCritical, warning},
};

/// Draws again at every size, so that it is sharp on every screen.
class DrawnIcon : public QIconEngine {
  public:
    explicit DrawnIcon(Drawing drawing) : drawing(drawing) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const double size = std::min(rect.width(), rect.height());
        const QPointF corner = QRectF(rect).center() - QPointF(size, size) / 2;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(corner);
        painter->scale(size / grid, size / grid);
        painter->setPen(QPen(mode == QIcon::Disabled ? colours::disabledText : colours::text, 1.3,
                             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        drawing(*painter);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new DrawnIcon(drawing); }

  private:
    Drawing drawing;
};

}  // namespace

QIcon drawnIcon(QStyle::StandardPixmap which) {
    const auto* const found = std::ranges::find(drawings, which, &Drawn::which);
    return found != std::end(drawings) ? QIcon(new DrawnIcon(found->drawing)) : QIcon();
}

}  // namespace clipvane
