// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSlider>
#include <QScrollArea>

namespace clipvane {

class CommentsBlockView;

/// Scrolls the detail stack up and down, and keeps it as wide as its own view allows.
///
/// Where the window is too low for the stack, the comments and their caret come into view when they
/// get the keyboard focus, with each key typed, and when the view is resized. Otherwise the view
/// stays where the user put it until another timeline is opened; Alt with Page Up and Page Down
/// scrolls it without a mouse.
class DetailScrollView : public QScrollArea {
  public:
    /// `comments` is part of `detailStack`.
    DetailScrollView(QWidget* detailStack, CommentsBlockView* comments);

    void showTop();

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
