// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QApplication;

namespace clipvane {

/// Decides when the control with the keyboard focus shows its ring: from the start and after a key,
/// but not after a click. Tells the style through the toolkit's own flag on each window. Owned by
/// the application.
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
