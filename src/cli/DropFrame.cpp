// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/DropFrame.h"

#include <algorithm>
#include <string>

#include "base/Characters.h"
#include "import/Lines.h"

namespace clipvane::cli {

using namespace std::string_view_literals;

FrameCodeMode frameCodeModeOfLine(std::string_view line) {
    const std::string_view content = trimBlanksAndNewlines(line);
    if (!std::ranges::equal(content.substr(0, 3), "fcm"sv, {}, asciiLower)) {
        return FrameCodeMode::none;
    }
    std::string text(content);
    std::ranges::transform(text, text.begin(), asciiLower);
    if (text.find("drop") == std::string::npos) return FrameCodeMode::none;
    const bool keeps = text.find("non") != std::string::npos;
    return keeps ? FrameCodeMode::nonDrop : FrameCodeMode::drop;
}

FrameCodeMode frameCodeModeOf(std::string_view edl) {
    bool drops = false;
    bool keeps = false;
    Lines lines(edl);
    while (const auto line = lines.next()) {
        const FrameCodeMode mode = frameCodeModeOfLine(*line);
        drops = drops || mode == FrameCodeMode::drop;
        keeps = keeps || mode == FrameCodeMode::nonDrop;
    }
    if (drops && keeps) return FrameCodeMode::mixed;
    if (drops) return FrameCodeMode::drop;
    return keeps ? FrameCodeMode::nonDrop : FrameCodeMode::none;
}

}  // namespace clipvane::cli
