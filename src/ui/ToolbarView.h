// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>
#include <functional>

namespace clipvane {

class FrameRatePopup;

/// The strip at the top of the main window: the name, and the controls at the right edge. When it
/// becomes narrow, the space between them shrinks first.
class ToolbarView : public QWidget {
  public:
    /// Holds the name alone.
    explicit ToolbarView(QWidget* parent = nullptr);

    // The next control from the left.
    void addButton(const QString& title, const std::function<void()>& action);
    void addPopup(FrameRatePopup* popup);
};

}  // namespace clipvane
