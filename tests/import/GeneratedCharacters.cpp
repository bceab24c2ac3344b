// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/GeneratedCharacters.h"

#include <unicode/uniset.h>

#include <array>

#include "base/UTF8.h"
#include "support/AppendUTF8.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

/// Ill-formed UTF-8, which reaches the reader as U+FFFD.
constexpr std::array illFormed{"\xFF"sv, "\xC0\x80"sv, "\xE2\x82"sv,     "\xED\xA0\x80"sv,
                               "\x85"sv, "\xA0"sv,     "\xF0\x9F\x98"sv, "\xF4\x90\x80\x80"sv};

/// Characters that ended many a reader's text, line or patience.
constexpr std::array awkward{"\0"sv,     "\r"sv,     "\n"sv,     "\u0085"sv, "\u2028"sv,
                             "\u2029"sv, "\u00A0"sv, "\uFEFF"sv, "\u200B"sv, "\u0301"sv,
                             "\uFFFD"sv, "\x1A"sv,   "\x7F"sv,   "\uFFFF"sv, "\U0010FFFF"sv};

std::u32string membersOf(const char16_t* pattern) {
    UErrorCode error = U_ZERO_ERROR;
    const icu::UnicodeSet set(icu::UnicodeString(pattern), error);
    std::u32string members;
    for (std::int32_t i = 0; i < set.size(); ++i) {
        members += static_cast<char32_t>(set.charAt(i));
    }
    return members;
}

char32_t anyCodePoint(Random& random) {
    static const std::u32string digits = membersOf(u"[:Nd:]");
    static const std::u32string whiteSpace = membersOf(u"[:White_Space:]");
    switch (random.below(6)) {
        case 0:
            return random.pick(digits);
        case 1:
            return random.pick(whiteSpace);
        case 2:
            return static_cast<char32_t>(random.below(0x80));
        case 3:
            return static_cast<char32_t>(random.below(0x3000));
        case 4:
            return static_cast<char32_t>(random.below(0x10000));
        default:
            return static_cast<char32_t>(random.below(0x110000));
    }
}

/// Where the character that holds the byte at `position` begins.
std::size_t characterAt(std::string_view text, std::size_t position) {
    while (position > 0 && (static_cast<unsigned char>(text[position]) & 0xC0) == 0x80) --position;
    return position;
}

}  // namespace

std::string anyCharacter(Random& random) {
    if (random.oneIn(8)) return std::string(random.pick(illFormed));
    if (random.oneIn(4)) return std::string(random.pick(awkward));
    std::string text;
    appendUTF8(text, anyCodePoint(random));
    return text;
}

void slip(Random& random, std::string& text) {
    if (text.empty()) return;
    const std::size_t byte = random.below(text.size());
    const std::size_t at = characterAt(text, byte);
    const std::size_t length = firstCodePoint(std::string_view(text).substr(at)).length;
    const std::string character = text.substr(at, length);
    switch (random.below(8)) {
        case 0:
            text.replace(at, length, anyCharacter(random));
            break;
        case 1:
            text.erase(at, length);
            break;
        case 2:
            text.insert(at, anyCharacter(random));
            break;
        case 3:
            text.insert(at, character);
            break;
        case 4:
            text.erase(at, length);
            text.insert(characterAt(text, at > 0 ? at - 1 : 0), character);
            break;
        case 5:
            text.erase(byte, 1 + random.below(4));
            break;
        case 6:
            text.insert(at, text.substr(at, 1 + random.below(12)));
            break;
        default:
            text.resize(byte);
            break;
    }
}

}  // namespace clipvane::test
