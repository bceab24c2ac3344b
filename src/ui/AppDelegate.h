// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

namespace clipvane {

/// What the program does when the toolkit says that it started, and that its last window closed.
class AppDelegate {
  public:
    void applicationDidFinishLaunching() const;
    bool applicationShouldTerminateAfterLastWindowClosed() const { return true; }
};

}  // namespace clipvane
