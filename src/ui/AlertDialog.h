// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <clipvane/Alert.h>

namespace clipvane {

/// A modal alert with the one button "OK". Its texts show as they stand, markup and all.
class AlertDialog : public QDialog {
  public:
    AlertDialog(const Alert& alert, QWidget* parent);

  protected:
    void showEvent(QShowEvent* event) override;
};

}  // namespace clipvane
