// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/MainLayoutView.h"

#include "ui/Geometry.h"

namespace clipvane {

void MainLayoutView::layout() {
    const MainLayout places = mainLayout(width(), height());
    const auto place = [this](QWidget* region, const Rect& rect) {
        if (region != nullptr) region->setGeometry(flipped(rect, height()));
    };
    place(toolbar, places.toolbar);
    place(status, places.status);
    place(leftPanel, places.leftPanel);
    place(rightPanel, places.rightPanel);
}

void MainLayoutView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layout();
}

}  // namespace clipvane
