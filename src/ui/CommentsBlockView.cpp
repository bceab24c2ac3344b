// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/CommentsBlockView.h"

#include "ui/Colours.h"
#include "ui/Fonts.h"
#include "ui/Geometry.h"
#include "ui/TextLabel.h"

namespace clipvane {

CommentsBlockView::CommentsBlockView(CommentsView* textView, QWidget* parent)
    : QWidget(parent),
      titleLabel(
          new TextLabel("Comments", systemFont(15, QFont::DemiBold), colours::secondaryText, this)),
      textView(textView) {
    resize(commentsBlockSize);
    textView->setParent(this);
    textView->show();
    titleLabel->setBuddy(textView);
}

QSize CommentsBlockView::sizeHint() const {
    return commentsBlockSize;
}

void CommentsBlockView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const CommentsBlockLayout places = commentsBlockLayout(width(), height());
    titleLabel->setGeometry(flipped(places.title, height()));
    textView->setGeometry(flipped(places.scroll, height()));
}

}  // namespace clipvane
