// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollArea>

namespace clipvane {

/// Scrolls the detail stack up and down, and keeps it as wide as its own view allows.
class DetailScrollView : public QScrollArea {
  public:
    explicit DetailScrollView(QWidget* detailStack);

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

}  // namespace clipvane
