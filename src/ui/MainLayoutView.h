// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace clipvane {

/// The main window's content: places its four regions by hand. A region that is null is skipped.
class MainLayoutView : public QWidget {
  public:
    QWidget* toolbar = nullptr;
    QWidget* leftPanel = nullptr;
    QWidget* rightPanel = nullptr;
    QWidget* status = nullptr;

    using QWidget::QWidget;

    void layout();

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

}  // namespace clipvane
