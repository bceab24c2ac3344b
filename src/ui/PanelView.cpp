// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/PanelView.h"

#include <QPainter>

#include "ui/Colours.h"
#include "ui/Fonts.h"
#include "ui/Geometry.h"
#include "ui/TextLabel.h"

namespace clipvane {

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
    return flipped(panelLayout(width(), height()).content, height());
}

void PanelView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const QRect inner = contentRect();
    titleLabel->setGeometry(flipped(panelLayout(width(), height()).title, height()));
    for (const Content& content : contents) {
        content.view->setGeometry(inner.marginsRemoved(content.margins));
    }
}

void PanelView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colours::panelEdge);
    painter.setBrush(colours::panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), panelCornerRadius,
                            panelCornerRadius);
}

}  // namespace clipvane
