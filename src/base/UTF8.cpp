// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/UTF8.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace clipvane {
namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";
constexpr std::int32_t longestSequence = 4;

const std::uint8_t* bytesOf(std::string_view text) {
    return reinterpret_cast<const std::uint8_t*>(text.data());
}

/// The first code point of `text`, which is not empty; negative for an ill-formed sequence.
UChar32 decodeFirst(std::string_view text, std::int32_t& length) {
    const std::uint8_t* bytes = bytesOf(text);
    const auto limit =
        static_cast<std::int32_t>(std::min(text.size(), static_cast<std::size_t>(longestSequence)));
    UChar32 codePoint = 0;
    length = 0;
    U8_NEXT(bytes, length, limit, codePoint);
    return codePoint;
}

/// The number of leading ASCII bytes, looked at 32 at a time.
std::size_t asciiPrefix(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::size_t position = 0;
    for (; position + 32 <= text.size(); position += 32) {
        std::uint64_t words[4];
        std::memcpy(words, text.data() + position, sizeof words);
        if (((words[0] | words[1] | words[2] | words[3]) & highBits) != 0) break;
    }
    while (position < text.size() && static_cast<unsigned char>(text[position]) < 0x80) ++position;
    return position;
}

}  // namespace

CodePoint firstCodePointBeyondASCII(std::string_view text) {
    std::int32_t length = 0;
    const UChar32 codePoint = decodeFirst(text, length);
    return {codePoint < 0 ? U'\uFFFD' : static_cast<char32_t>(codePoint),
            static_cast<std::size_t>(length)};
}

CodePoint lastCodePoint(std::string_view text) {
    const std::size_t tail = std::min(text.size(), static_cast<std::size_t>(longestSequence));
    const std::uint8_t* bytes = bytesOf(text) + (text.size() - tail);
    auto position = static_cast<std::int32_t>(tail);
    UChar32 codePoint = 0;
    U8_PREV_OR_FFFD(bytes, 0, position, codePoint);
    return {static_cast<char32_t>(codePoint), tail - static_cast<std::size_t>(position)};
}

bool isASCII(std::string_view text) {
    return asciiPrefix(text) == text.size();
}

std::size_t validUTF8Prefix(std::string_view bytes) {
    std::size_t position = 0;
    while (true) {
        position += asciiPrefix(bytes.substr(position));
        if (position == bytes.size()) return position;
        std::int32_t length = 0;
        if (decodeFirst(bytes.substr(position), length) < 0) return position;
        position += static_cast<std::size_t>(length);
    }
}

std::string replaceInvalidUTF8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (true) {
        const std::size_t valid = validUTF8Prefix(bytes);
        text += bytes.substr(0, valid);
        bytes.remove_prefix(valid);
        if (bytes.empty()) return text;
        text += replacementCharacter;
        bytes.remove_prefix(firstCodePoint(bytes).length);
    }
}

}  // namespace clipvane
