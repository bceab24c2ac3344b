// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/Lines.h"

#include <algorithm>
#include <cstdint>

#include "import/ByteBlock.h"

namespace clipvane {
namespace {

/// The length of the newline other than a line feed that `text` begins with, or zero.
std::size_t rareNewlineLength(std::string_view text) {
    switch (static_cast<std::uint8_t>(text.front())) {
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

bool mayHoldRareNewline(const char* bytes) {
    const ByteBlock block = loadBlock(bytes);
    return holdsAnywhere((block - 0x0B < 3) | (block == 0xC2) | (block == 0xE2));
}

/// The place of the first newline in `text`, which holds no line feed, or the size of `text`.
std::size_t findRareNewline(std::string_view text) {
    constexpr std::size_t blockSize = sizeof(ByteBlock);
    std::size_t position = 0;
    if (text.size() >= blockSize) {
        // The last block overlaps the one before it.
        const std::size_t last = text.size() - blockSize;
        while (!mayHoldRareNewline(text.data() + position)) {
            if (position == last) return text.size();
            position = std::min(position + blockSize, last);
        }
    }
    while (position < text.size() && rareNewlineLength(text.substr(position)) == 0) ++position;
    return position;
}

}  // namespace

/// The C library looks for line feeds faster than anybody else. Other newlines are looked for only
/// up to the next one, so that each is sought once, whatever the text consists of.
void Lines::findLineFeed() {
    lineFeed = std::min(text.find('\n', position), text.size());
}

std::optional<std::string_view> Lines::next() {
    if (isThrough) return std::nullopt;
    const std::string_view line = text.substr(position, lineFeed - position);
    const std::size_t size = findRareNewline(line);
    position += size;
    if (size < line.size()) {
        position += rareNewlineLength(line.substr(size));
    } else if (lineFeed < text.size()) {
        ++position;
        findLineFeed();
    } else {
        isThrough = true;
    }
    return line.substr(0, size);
}

}  // namespace clipvane
