// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

namespace clipvane {

/// The pop-up of the frame rates. Choosing one converts the whole list and loses frames, so that
/// nothing chooses while the list is closed: neither the wheel nor a key.
class FrameRatePopup : public QComboBox {
  public:
    /// Holds the standard rates.
    explicit FrameRatePopup(QWidget* parent = nullptr);

    /// Shows `fps`, as one more entry at the end if there is none with its title.
    void showRate(double fps);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void selectShown();
};

}  // namespace clipvane
