// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <concepts>
#include <string>
#include <string_view>

namespace clipvane::cli {

/// "1 event", "2 events".
template <std::integral Count>
std::string counted(Count count, std::string_view one) {
    std::string text = std::to_string(count) + ' ';
    text += one;
    return count == 1 ? text : text + 's';
}

}  // namespace clipvane::cli
