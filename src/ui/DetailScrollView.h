// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSlider>
#include <QScrollArea>

namespace clipvane {

class CommentsBlockView;

/// Scrolls the detail stack up and down, and keeps it as wide as its own view allows.
///
/// Where the window is too low for the stack, the comments and their caret come into view when the
/// keyboard goes there, with each thing typed, and when the view's size changes. Otherwise the view
/// stays where the user has it; Alt with Page Up and Page Down moves it without a mouse.
class DetailScrollView : public QScrollArea {
  public:
    /// `comments` is part of `detailStack`.
    DetailScrollView(QWidget* detailStack, CommentsBlockView* comments);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void scrollOnKey(Qt::Key key, QAbstractSlider::SliderAction action);
    void showCaret();
    void showRows(const QRect& rect);

    CommentsBlockView* comments;
};

}  // namespace clipvane
