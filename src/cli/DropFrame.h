// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace clipvane::cli {

/// What the FCM lines of an EDL say together.
enum class FrameCodeMode {
    none,  ///< there are none
    nonDrop,
    drop,
    mixed,  ///< some drop frames, others do not
};

/// What the lines of the EDL that begin with FCM say: DROP FRAME or NON-DROP FRAME, in any case.
FrameCodeMode frameCodeModeOf(std::string_view edl);

}  // namespace clipvane::cli
