// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/DetailStackView.h"

#include <algorithm>

#include "ui/Colours.h"
#include "ui/CommentsBlockView.h"
#include "ui/DetailRowView.h"
#include "ui/Fonts.h"
#include "ui/Geometry.h"
#include "ui/Text.h"
#include "ui/TextLabel.h"

namespace clipvane {

DetailStackView::DetailStackView(QWidget* parent)
    : QWidget(parent),
      detailTitle(new TextLabel("No event selected", systemFont(22, QFont::Bold),
                                colours::detailTitle, this)) {
    detailTitle->setMaximumLines(2);
}

void DetailStackView::setCommentsBlock(CommentsBlockView* block) {
    commentsBlock = block;
    block->setParent(this);
    block->show();
    layout();
}

void DetailStackView::setTitle(const QString& text) {
    if (text == detailTitle->text()) return;
    detailTitle->setText(text);
    layout();
}

bool DetailStackView::showsKeys(const std::vector<DetailRow>& rows) const {
    return std::equal(rows.begin(), rows.end(), views.begin(), views.end(),
                      [](const DetailRow& row, const DetailRowView* view) {
                          return toQt(row.key) == view->keyLabel->text();
                      });
}

void DetailStackView::insertDetailRows(const std::vector<DetailRow>& rows) {
    if (!views.empty() && showsKeys(rows)) {
        for (std::size_t i = 0; i < rows.size(); ++i) views[i]->setValue(toQt(rows[i].value));
        return;
    }
    for (DetailRowView* view : views) delete view;
    views.clear();
    for (const DetailRow& row : rows) {
        views.push_back(
            new DetailRowView(toQt(row.key), toQt(row.value), detailColour(row.key), this));
        views.back()->show();
    }
    // The order of the children is the order in which assistive technology reads them.
    if (commentsBlock != nullptr) commentsBlock->raise();
    layout();
}

QString DetailStackView::elidedTexts() const {
    QStringList texts;
    if (detailTitle->isElided()) texts << displayLine(detailTitle->text());
    for (const DetailRowView* view : views) {
        if (!view->valueLabel->isElided()) continue;
        texts << view->keyLabel->text() + ": " + displayLine(view->valueLabel->text());
    }
    return texts.join('\n');
}

void DetailStackView::layout() {
    const double inner = detailStackLayout(width(), 0, 0).title.width;
    const int titleHeight = detailTitle->heightForWidth(static_cast<int>(inner));
    const DetailStackLayout places = detailStackLayout(width(), titleHeight, views.size());
    detailTitle->setGeometry(flipped(places.title, height()));
    for (std::size_t i = 0; i < views.size(); ++i) {
        views[i]->setGeometry(flipped(places.rows[i], height()));
    }
    if (commentsBlock != nullptr) commentsBlock->setGeometry(flipped(places.comments, height()));
}

void DetailStackView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layout();
}

}  // namespace clipvane
