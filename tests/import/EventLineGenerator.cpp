// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/EventLineGenerator.h"

#include <array>
#include <string_view>

#include "base/UTF8.h"
#include "import/GeneratedCharacters.h"
#include "support/AppendUTF8.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

constexpr std::array blanks{
    " "sv,      "  "sv,     "\t"sv,     "\v"sv,     "\f"sv,     "\r"sv,     "\n"sv,
    "\u0085"sv, "\u00A0"sv, "\u1680"sv, "\u2000"sv, "\u2003"sv, "\u200A"sv, "\u2028"sv,
    "\u2029"sv, "\u202F"sv, "\u205F"sv, "\u3000"sv, " \t "sv,
};

/// Characters that look or sound like blanks, and are none.
constexpr std::array falseBlanks{
    ""sv,       "\0"sv,     "\x1C"sv,   "\x1D"sv,   "\x1E"sv,   "\x1F"sv,   "\u200B"sv, "\uFEFF"sv,
    "\u180E"sv, "\u2060"sv, "\u00AD"sv, "\u0300"sv, "\u3164"sv, "\u2800"sv, "_"sv,
};

/// The zeros of scripts; the other nine digits follow each.
constexpr std::array<char32_t, 8> zeros{0x30,   0x660,   0x6F0,   0x966,
                                        0xFF10, 0x1D7CE, 0x1E950, 0x11066};

/// Numbers that are not decimal digits.
constexpr std::array falseDigits{"\u00B2"sv, "\u2167"sv, "\u00BD"sv,     "\u4E00"sv, "O"sv,
                                 "\u2460"sv, "-1"sv,     "\U00010107"sv, "\u0BF0"sv, "."sv};

constexpr std::array falseColons{";"sv,      "\uFF1A"sv, ":\u0301"sv, "\u2236"sv, "\u037E"sv,
                                 "\u02D0"sv, "."sv,      "::"sv,      ""sv,       ": "sv,
                                 " :"sv,     "\uFE55"sv, "\u200B:"sv};

constexpr std::array words{
    "AX"sv,         "V"sv,
    "C"sv,          "D"sv,
    "W001"sv,       "AA/V"sv,
    "A001_C003"sv,  "B"sv,
    "K O"sv,        "K B"sv,
    "\u00C9"sv,     "*"sv,
    "001"sv,        "3\u0301"sv,
    "\U0001F3AC"sv, "\uFFFD"sv,
    "e\u0301"sv,    "\u200B"sv,
    "\uFEFF"sv,     "\0"sv,
    ":"sv,          "00:00:00:00"sv,
    "1:2"sv,        "12345"sv,
    "\u0661"sv,     "FROM CLIP NAME"sv,
};

std::string blank(Random& random) {
    if (random.oneIn(150)) return std::string(random.pick(falseBlanks));
    std::string text(random.oneIn(4) ? random.pick(blanks) : " "sv);
    if (random.oneIn(6)) text += random.pick(blanks);
    if (random.oneIn(200)) text += random.pick(falseBlanks);
    if (random.oneIn(1000)) text.append(random.below(300), ' ');
    return text;
}

std::string digit(Random& random) {
    if (random.oneIn(300)) return std::string(random.pick(falseDigits));
    const char32_t zero = random.oneIn(12) ? random.pick(zeros) : zeros[0];
    std::string text;
    appendUTF8(text, zero + static_cast<char32_t>(random.below(10)));
    return text;
}

std::string digits(Random& random, std::size_t count) {
    std::string text;
    while (count-- > 0) text += digit(random);
    return text;
}

std::string timecode(Random& random) {
    std::string text;
    for (int field = 0; field < 4; ++field) {
        if (field > 0) text += random.oneIn(150) ? random.pick(falseColons) : ":"sv;
        text += digits(random, random.oneIn(150) ? random.below(4) : 2);
    }
    return text;
}

/// Now and then a column is longer than any buffer on the stack.
std::string longColumn(Random& random) {
    std::string text;
    for (std::size_t left = random.below(1000); left > 0; --left) {
        text += random.oneIn(30) ? random.pick(words) : "0"sv;
    }
    return text;
}

/// Mostly one word; sometimes a timecode or digits, to be taken for another column.
std::string column(Random& random) {
    if (random.oneIn(40)) return timecode(random);
    if (random.oneIn(40)) return digits(random, 1 + random.below(4));
    if (random.oneIn(500)) return longColumn(random);
    return std::string(random.pick(words));
}

std::string duration(Random& random) {
    if (random.oneIn(12)) return column(random);
    return digits(random, 1 + random.below(4));
}

}  // namespace

std::string generateEventLine(Random& random) {
    std::string line;
    if (random.oneIn(4)) line += blank(random);
    line += digits(random, random.oneIn(100) ? 0 : 1 + random.below(random.oneIn(500) ? 400 : 5));
    // Reel, track and edit type, now and then one too few or too many.
    const std::size_t columns = random.oneIn(20) ? 2 + random.below(3) : 3;
    for (std::size_t i = 0; i < columns; ++i) line += blank(random) + column(random);
    if (random.oneIn(4)) line += blank(random) + duration(random);
    if (random.oneIn(60)) line += blank(random) + duration(random);
    const std::size_t timecodes = random.oneIn(15) ? 2 + random.below(4) : 4;
    for (std::size_t i = 0; i < timecodes; ++i) line += blank(random) + timecode(random);
    if (random.oneIn(5)) line += digit(random);
    if (random.oneIn(5)) line += blank(random) + column(random);
    if (random.oneIn(4)) slip(random, line);
    return replaceInvalidUTF8(line);
}

}  // namespace clipvane::test
