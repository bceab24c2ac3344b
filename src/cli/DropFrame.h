// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace clipvane::cli {

/// What the FCM lines of an EDL say together.
enum class FrameCodeMode {
    none,  ///< there are none
    nonDrop,
    drop,
    mixed,  ///< some drop frames, others do not
};

/// What a line says if it begins with FCM: `drop` for DROP FRAME, `nonDrop` for NON-DROP FRAME, in
/// any case; otherwise `none`.
FrameCodeMode frameCodeModeOfLine(std::string_view line);

/// What such lines of the EDL say together.
FrameCodeMode frameCodeModeOf(std::string_view edl);

}  // namespace clipvane::cli
