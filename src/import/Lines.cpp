// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/Lines.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace clipvane {
namespace {

constexpr std::uint64_t repeated(std::uint8_t byte) {
    return 0x0101010101010101U * byte;
}

/// Whether any of eight bytes may belong to a newline: U+000A to U+000D, or not ASCII at all.
bool mayHoldNewline(std::uint64_t bytes) {
    const std::uint64_t ascii = bytes & repeated(0x7F);
    const std::uint64_t atLeastLineFeed = ascii + repeated(0x80 - 0x0A);
    const std::uint64_t aboveCarriageReturn = ascii + repeated(0x7F - 0x0D);
    return (((atLeastLineFeed & ~aboveCarriageReturn) | bytes) & repeated(0x80)) != 0;
}

/// The length of the newline that `text` begins with, or zero.
std::size_t newlineLength(std::string_view text) {
    switch (static_cast<std::uint8_t>(text.front())) {
        case 0x0A:
        case 0x0B:
        case 0x0C:
        case 0x0D:
            return 1;
        case 0xC2:
            return text.starts_with("\u0085") ? 2 : 0;
        case 0xE2:
            return text.starts_with("\u2028") || text.starts_with("\u2029") ? 3 : 0;
        default:
            return 0;
    }
}

struct Newline {
    std::size_t position;
    std::size_t length;
};

std::optional<Newline> findNewline(std::string_view text) {
    constexpr std::size_t wordSize = sizeof(std::uint64_t);
    std::size_t position = 0;
    while (position < text.size()) {
        std::uint64_t word = 0;
        while (position + wordSize <= text.size()) {
            std::memcpy(&word, text.data() + position, wordSize);
            if (mayHoldNewline(word)) break;
            position += wordSize;
        }
        const std::size_t end = std::min(position + wordSize, text.size());
        for (; position < end; ++position) {
            const std::size_t length = newlineLength(text.substr(position));
            if (length > 0) return Newline{position, length};
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string_view> Lines::next() {
    if (!rest) return std::nullopt;
    const std::string_view text = *rest;
    const auto newline = findNewline(text);
    if (!newline) {
        rest.reset();
        return text;
    }
    rest = text.substr(newline->position + newline->length);
    return text.substr(0, newline->position);
}

}  // namespace clipvane
