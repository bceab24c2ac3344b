// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMargins>
#include <QObject>
#include <QSize>

class QWidget;

namespace clipvane {

/// Keeps a window from becoming smaller than a size that counts its frame, which is known only once
/// the window is on the screen. The largest frame counts: a window that is being shown again has
/// none for a moment, and a maximized one a thinner one, but neither may grow what the user left at
/// its smallest. Lives with the window.
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
