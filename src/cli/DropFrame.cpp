// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/DropFrame.h"

#include <algorithm>
#include <string>

#include "base/Characters.h"
#include "import/Lines.h"

namespace clipvane::cli {

FrameCodeMode frameCodeModeOf(std::string_view edl) {
    bool drops = false;
    bool keeps = false;
    Lines lines(edl);
    while (const auto line = lines.next()) {
        std::string text(trimBlanksAndNewlines(*line));
        std::ranges::transform(text, text.begin(), asciiLower);
        if (!text.starts_with("fcm") || text.find("drop") == std::string::npos) continue;
        (text.find("non") == std::string::npos ? drops : keeps) = true;
    }
    if (drops && keeps) return FrameCodeMode::mixed;
    if (drops) return FrameCodeMode::drop;
    return keeps ? FrameCodeMode::nonDrop : FrameCodeMode::none;
}

}  // namespace clipvane::cli
