// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "ui/CommentsView.h"

namespace clipvane {

class TextLabel;

/// The comments editor under its title. The editor scrolls its own text.
class CommentsBlockView : public QWidget {
  public:
    TextLabel* const titleLabel;
    CommentsView* const textView;

    explicit CommentsBlockView(CommentsView* textView, QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

}  // namespace clipvane
