// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QApplication;

namespace clipvane {

/// Decides when the ring around what has the keyboard is shown: while the keyboard was used last,
/// or nothing yet; a click hides it. Tells the style by the toolkit's own mark on each window.
/// Lives with the application.
class FocusRing : public QObject {
  public:
    explicit FocusRing(QApplication& application);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show(bool now);

    bool shown = true;
};

}  // namespace clipvane
