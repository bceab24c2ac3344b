// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/AppDelegate.h"

#include "ui/AppLog.h"

namespace clipvane {

void AppDelegate::applicationDidFinishLaunching() const {
    AppLog::write("Application did finish launching.");
}

}  // namespace clipvane
