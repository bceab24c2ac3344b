// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>
#include <vector>

#include "ui/DetailRows.h"

namespace clipvane {

class CommentsBlockView;
class DetailRowView;
class TextLabel;

/// The content of the detail panel: the title, the rows, the comments block.
class DetailStackView : public QWidget {
  public:
    TextLabel* const detailTitle;

    explicit DetailStackView(QWidget* parent = nullptr);

    void setCommentsBlock(CommentsBlockView* block);
    void setTitle(const QString& text);
    /// Shows `rows` between the title and the comments block, instead of the earlier ones.
    void insertDetailRows(const std::vector<DetailRow>& rows);
    /// The title and the rows that are cut short on the screen, in full, one per line.
    QString elidedTexts() const;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    bool showsKeys(const std::vector<DetailRow>& rows) const;
    void layout();

    CommentsBlockView* commentsBlock = nullptr;
    std::vector<DetailRowView*> views;
};

}  // namespace clipvane
