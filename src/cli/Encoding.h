// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace clipvane::cli {

/// U+FEFF in UTF-8.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Whether the bytes begin as a text in UTF-16 does: with its byte-order mark, or with characters
/// of ASCII in two bytes each.
inline bool isUTF16(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return true;
    if (bytes.size() < 4) return false;
    const bool isLittleEndian = bytes[0] != 0 && bytes[1] == 0 && bytes[2] != 0 && bytes[3] == 0;
    const bool isBigEndian = bytes[0] == 0 && bytes[1] != 0 && bytes[2] == 0 && bytes[3] != 0;
    return isLittleEndian || isBigEndian;
}

}  // namespace clipvane::cli
