// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace clipvane {

/// Frames per second of a timeline that names no rate, as the help text tells the user.
inline constexpr double defaultFPS = 24.0;

// Where a document's frame rate came from, as shown to the user.
inline constexpr std::string_view fpsSourceDefault = "Default";  ///< none named: `defaultFPS`
inline constexpr std::string_view fpsSourceFile = "File";        ///< detected in the file
inline constexpr std::string_view fpsSourceManual = "Manual";    ///< chosen by the user

}  // namespace clipvane
