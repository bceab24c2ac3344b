// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>

namespace clipvane {

/// The window with the instructions. Closing it, also by Esc, only hides it; shown again it is as
/// it was left.
class HelpWindow : public QMainWindow {
  public:
    HelpWindow();

    /// Centres the window, with the `frame` that it will get, in `area`.
    void centre(const QRect& area, const QMargins& frame);

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace clipvane
