// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/JSONText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "base/UTF8.h"

namespace clipvane::cli {
namespace {

enum class Kind : std::uint8_t { plain, escaped, rare };

/// How each byte is written: as it is, as a backslash and a character, or by the library.
constexpr std::array<Kind, 256> kinds = [] {
    std::array<Kind, 256> result{};
    for (std::size_t byte = 0; byte < 0x20; ++byte) result[byte] = Kind::rare;
    for (const char c : {'"', '\\', '\n', '\r', '\t'}) {
        result[static_cast<unsigned char>(c)] = Kind::escaped;
    }
    return result;
}();

Kind kindOf(char c) {
    return kinds[static_cast<unsigned char>(c)];
}

/// What stands for `c` behind the backslash.
char escaped(char c) {
    switch (c) {
        case '\n':
            return 'n';
        case '\r':
            return 'r';
        case '\t':
            return 't';
        default:
            return c;
    }
}

/// The length of the longest beginning that is written as it is.
std::size_t plainLength(std::string_view text) {
    const auto end = std::ranges::find_if(text, [](char c) { return kindOf(c) != Kind::plain; });
    return static_cast<std::size_t>(end - text.begin());
}

/// Appends `text` if its characters are usual ones, and tells whether they are.
bool appendUsual(std::string& line, std::string_view text) {
    while (true) {
        const std::size_t plain = plainLength(text);
        line += text.substr(0, plain);
        if (plain == text.size()) return true;
        if (kindOf(text[plain]) == Kind::rare) return false;
        line += '\\';
        line += escaped(text[plain]);
        text.remove_prefix(plain + 1);
    }
}

}  // namespace

// Nearly every text is usual and is written here: the library takes several times as long. It gets
// the others.
void appendJSONText(std::string& line, std::string_view text) {
    using nlohmann::json;
    const std::size_t start = line.size();
    line += '"';
    if (validUTF8Prefix(text) == text.size() && appendUsual(line, text)) {
        line += '"';
        return;
    }
    line.resize(start);
    line += json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace clipvane::cli
