// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/DetailScrollView.h"

#include <cmath>

#include "ui/Geometry.h"

namespace clipvane {

DetailScrollView::DetailScrollView(QWidget* detailStack) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWidget(detailStack);
    detailStack->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

void DetailScrollView::resizeEvent(QResizeEvent* event) {
    const double width = detailStackWidth(viewport()->width());
    widget()->resize(static_cast<int>(std::round(width)), static_cast<int>(detailStackHeight));
    QScrollArea::resizeEvent(event);
}

}  // namespace clipvane
