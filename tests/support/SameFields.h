// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include <clipvane/TimelineEvent.h>

namespace clipvane::test {

/// Whether all fields but the identifier have the same bytes.
inline bool sameFields(const TimelineEvent& a, const TimelineEvent& b) {
    bool areSame = true;
    const auto compare = [&](std::string_view name, const auto& left, const auto& right) {
        areSame = areSame && (name == "id" || left == right);
    };
    forEachField(compare, a, b);
    return areSame;
}

}  // namespace clipvane::test
