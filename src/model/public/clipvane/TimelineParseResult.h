// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include <clipvane/EventList.h>

namespace clipvane {

/// What one import of a file yields.
struct TimelineParseResult {
    EventList events;       ///< in the file's order
    double fps = 0;         ///< frames per second: detected, or the default of 24
    std::string fpsSource;  ///< "File" or "Default"
};

}  // namespace clipvane
