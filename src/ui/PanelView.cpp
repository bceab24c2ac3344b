// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/PanelView.h"

#include <QPainter>

#include "ui/Colours.h"
#include "ui/FlippedRect.h"
#include "ui/Fonts.h"
#include "ui/TextLabel.h"

namespace clipvane {
namespace {

constexpr double cornerRadius = 8;
constexpr int titleHeight = 24;
constexpr int titleDistance = 29;  ///< from the title's top to the content's

}  // namespace

PanelView::PanelView(const QString& title, QWidget* parent)
    : QWidget(parent),
      titleLabel(new TextLabel(title, systemFont(16, QFont::DemiBold), colours::text, this)) {
    setAccessibleName(title);
}

void PanelView::addContent(QWidget* view, const QMargins& margins) {
    view->setParent(this);
    view->setGeometry(contentRect().marginsRemoved(margins));
    view->show();
    contents.push_back({view, margins});
}

QRect PanelView::contentRect() const {
    return flipped(panelContent(width(), height()), height());
}

void PanelView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const QRect inner = contentRect();
    titleLabel->setGeometry(inner.left(), inner.top() - titleDistance, inner.width(), titleHeight);
    for (const Content& content : contents) {
        content.view->setGeometry(inner.marginsRemoved(content.margins));
    }
}

void PanelView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colours::panelEdge);
    painter.setBrush(colours::panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
}

}  // namespace clipvane
