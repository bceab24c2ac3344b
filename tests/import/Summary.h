// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <type_traits>

#include <clipvane/TimelineParseResult.h>

namespace clipvane::test {

/// All fields of the event but its identifier, the texts with a bar behind each.
inline std::string summary(const TimelineEvent& event) {
    std::string text;
    const auto add = [&](const char*, const auto& field) {
        if constexpr (std::is_same_v<decltype(field), const std::string&>) text += field + "|";
    };
    forEachField(add, event);
    return text + (event.highlighted ? "yes" : "no");
}

inline std::string summary(const EventView& event) {
    return summary(event.record());
}

}  // namespace clipvane::test
