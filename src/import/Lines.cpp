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

constexpr std::size_t blockSize = sizeof(ByteBlock);

/// All ones for each byte that can begin a rare newline, and for a few that cannot.
ByteBlock rareNewlineStarts(const char* bytes) {
    const ByteBlock block = loadBlock(bytes);
    return ByteBlock((block - 0x0B < 3) | ((block | 0x20) == 0xE2));
}

bool mayHoldRareNewline(std::string_view text) {
    if (text.size() < blockSize) {
        return std::ranges::any_of(text, [](char c) {
            const auto byte = static_cast<std::uint8_t>(c);
            return (byte >= 0x0B && byte <= 0x0D) || (byte | 0x20) == 0xE2;
        });
    }
    ByteBlock found = rareNewlineStarts(text.data() + text.size() - blockSize);
    for (std::size_t end = blockSize; end < text.size(); end += blockSize) {
        found |= rareNewlineStarts(text.data() + end - blockSize);
    }
    return holdsAnywhere(found);
}

/// The place of the first newline in `text`, which holds no line feed, or the size of `text`.
std::size_t findRareNewline(std::string_view text) {
    std::size_t position = 0;
    if (text.size() >= blockSize) {
        // The last block overlaps the one before it.
        const std::size_t last = text.size() - blockSize;
        while (!holdsAnywhere(rareNewlineStarts(text.data() + position))) {
            if (position == last) return text.size();
            position = std::min(position + blockSize, last);
        }
    }
    while (position < text.size() && rareNewlineLength(text.substr(position)) == 0) ++position;
    return position;
}

}  // namespace

/// Looks for other newlines than line feeds in many lines at once, few enough to be still in the
/// processor's cache when they are read.
void Lines::lookAhead() {
    constexpr std::size_t stretch = 4096;
    lookedAt = std::max(lineFeed, std::min(position + stretch, text.size()));
    mayHoldOthers = mayHoldRareNewline(text.substr(position, lookedAt - position));
}

/// Looks for other newlines only up to the next line feed, so that each byte is looked at once,
/// whatever the text is made of.
std::string_view Lines::nextAtAnyNewline() {
    const std::string_view line = text.substr(position, lineFeed - position);
    const std::size_t size = findRareNewline(line);
    if (size < line.size()) {
        position += size + rareNewlineLength(line.substr(size));
    } else {
        passLineFeed();
    }
    return line.substr(0, size);
}

}  // namespace clipvane
