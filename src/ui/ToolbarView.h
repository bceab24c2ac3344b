// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>
#include <functional>

namespace clipvane {

class FrameRatePopup;

/// What the toolbar's buttons call.
struct ToolbarActions {
    std::function<void()> openTimeline;
    std::function<void()> removeSelectedEvent;
    std::function<void()> copySelectedInfo;
    std::function<void()> exportCSV;
    std::function<void()> exportEDL;
    std::function<void()> showHelp;
};

/// The strip at the top of the main window: the name, and the controls at the right edge. When it
/// becomes narrow, the space between them shrinks first.
class ToolbarView : public QWidget {
  public:
    ToolbarView(const ToolbarActions& actions, FrameRatePopup* fpsPopup, QWidget* parent = nullptr);
};

}  // namespace clipvane
