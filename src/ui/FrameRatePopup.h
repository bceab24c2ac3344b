// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

namespace clipvane {

/// The pop-up of the frame rates. Choosing one converts the whole list and can lose frames, so
/// neither the wheel nor a key chooses while the list is closed.
class FrameRatePopup : public QComboBox {
  public:
    /// Holds the standard rates.
    explicit FrameRatePopup(QWidget* parent = nullptr);

    /// Shows `fps`. If it is not among the entries, it is added at the end.
    void showRate(double fps);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void selectShown();
};

}  // namespace clipvane
