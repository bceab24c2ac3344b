// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMargins>
#include <QObject>
#include <QSize>

class QWidget;

namespace clipvane {

/// A window's least size, frame included. The frame is known only once the window is on the screen.
/// The largest one seen counts: a window that is shown again has none for a moment, and a maximized
/// window has a thinner one, and neither may change the size in which the user left it. Owned by
/// the window.
class FrameMinimumSize : public QObject {
  public:
    FrameMinimumSize(QWidget* window, const QSize& minimum);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void apply();

    QWidget* window;
    QSize minimum;
    QMargins frame;  ///< the largest seen so far
};

}  // namespace clipvane
