#include "import/FrameRateGenerator.h"

#include <array>
#include <string_view>

#include "base/Characters.h"
#include "base/UTF8.h"
#include "import/GeneratedCharacters.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

constexpr std::array blanks{" "sv,  "\t"sv,     "\n"sv,     "\r\n"sv,   "\v"sv,     "\u0085"sv,
                            "  "sv, "\u00A0"sv, "\u2028"sv, "\u3000"sv, "\u1680"sv, "\f"sv};
constexpr std::array falseBlanks{"\0"sv, "\u200B"sv, "\uFEFF"sv, "\x1C"sv, "_"sv, "\u180E"sv};

/// Characters that some kind of case folding takes for letters of the names.
constexpr std::array lookAlikes{"\u017F"sv, "\uFB01"sv, "\uFB00"sv, "\uFB05"sv, "\uFB06"sv,
                                "\u212A"sv, "\u0131"sv, "\u0130"sv, "\u1E9E"sv, "\u00DF"sv,
                                "\uFF46"sv, "\u1E9A"sv, "\u0430"sv, "\u00AA"sv, "\u1D50"sv};

constexpr std::array names{"frame rate"sv, "framerate"sv, "fps"sv};
constexpr std::array falseNames{"frame  rate"sv, "frame\u00A0rate"sv, "frame-rate"sv, "fp s"sv,
                                "framerates"sv,  "fps\""sv,           "ffps"sv,       "frame"sv};
constexpr std::array marks{":"sv, "="sv, ": "sv, "="sv};
constexpr std::array falseMarks{"\uFF1A"sv, ";"sv, ""sv, "=="sv, "\uFF1D"sv, ":\""sv};
constexpr std::array quotes{"\""sv, "'"sv};
constexpr std::array falseQuotes{""sv, "\u201C"sv, "`"sv, "\u2019"sv, "&quot;"sv, "\" "sv};
constexpr std::array numbers{"25"sv,      "23.976"sv, "29.97"sv, "30"sv,        "0"sv,    "0.0"sv,
                             "00"sv,      "60.000"sv, "0.5"sv,   "00024"sv,     "1001"sv, "30000"sv,
                             "0.00001"sv, "1"sv,      "24000"sv, "4294967296"sv};
constexpr std::array falseNumbers{""sv,       "."sv,      ".5"sv,     "25."sv,          "25..5"sv,
                                  "-25"sv,    "+25"sv,    "0x19"sv,   "1e3"sv,          "25,5"sv,
                                  "inf"sv,    "nan"sv,    "2 5"sv,    "\u0662\u0665"sv, "\uFF12"sv,
                                  "25.5.5"sv, "\u00B2"sv, "2\u0300"sv};
constexpr std::array fillers{"TITLE "sv, "f"sv,           "fp"sv,
                             "fra"sv,    "tim"sv,         "<"sv,
                             "\u00E9"sv, "\n"sv,          "t"sv,
                             "FPS"sv,    "s"sv,           "fram"sv,
                             "\uFFFD"sv, "\U0001F3AC"sv,  "fps:"sv,
                             "frame "sv, "time"sv,        "<timebase>"sv,
                             "\0"sv,     "timebase=\""sv, "frameduration='1/"sv};

template <class Pool, class FalsePool>
std::string mostly(Random& random, const Pool& pool, const FalsePool& falsePool) {
    return std::string(random.oneIn(16) ? random.pick(falsePool) : random.pick(pool));
}

std::string space(Random& random) {
    std::string text;
    while (random.oneIn(3)) text += mostly(random, blanks, falseBlanks);
    return text;
}

std::string digits(Random& random) {
    std::string text;
    for (std::size_t left = 1 + random.below(25); left > 0; --left) {
        text += static_cast<char>('0' + random.below(10));
    }
    return text;
}

std::string number(Random& random) {
    constexpr std::size_t beyondDoubles = 400;
    if (random.oneIn(60)) return std::string(beyondDoubles, '7');
    if (random.oneIn(60)) return "0." + std::string(beyondDoubles, '0') + '1';
    if (random.oneIn(10)) return digits(random) + (random.oneIn(2) ? "." + digits(random) : "");
    return mostly(random, numbers, falseNumbers);
}

std::string quoted(Random& random, const std::string& text) {
    return mostly(random, quotes, falseQuotes) + text + mostly(random, quotes, falseQuotes);
}

/// `word` in other cases, an s at times long, and rarely with a false letter.
std::string spelt(Random& random, std::string_view word) {
    std::string text;
    const bool shouts = random.oneIn(4);
    for (const char c : word) {
        const bool isLetter = asciiLower(c) >= 'a' && asciiLower(c) <= 'z';
        if (isLetter && random.oneIn(150)) {
            text += random.pick(lookAlikes);
        } else if (asciiLower(c) == 's' && random.oneIn(6)) {
            text += "\u017F";
        } else if (isLetter && (shouts || random.oneIn(10))) {
            text += static_cast<char>(c ^ 0x20);
        } else {
            text += c;
        }
    }
    return text;
}

std::string namedRate(Random& random) {
    return spelt(random, mostly(random, names, falseNames)) + space(random) +
           mostly(random, marks, falseMarks) + space(random) + number(random);
}

std::string element(Random& random) {
    return spelt(random, "<timebase>") + space(random) + number(random) + space(random) +
           spelt(random, "</timebase>");
}

std::string attribute(Random& random) {
    return spelt(random, "timebase=") + quoted(random, number(random));
}

std::string frameDuration(Random& random) {
    const std::string seconds = number(random) + "/" + number(random) + spelt(random, "s");
    return spelt(random, "frameDuration=") + quoted(random, seconds);
}

constexpr std::size_t formCount = 4;

std::string fragment(Random& random, std::size_t form) {
    switch (form) {
        case 0:
            return namedRate(random);
        case 1:
            return element(random);
        case 2:
            return attribute(random);
        default:
            return frameDuration(random);
    }
}

}  // namespace

std::string generateFrameRateText(Random& random) {
    std::string text(random.below(20), '.');
    const bool isMixed = random.oneIn(2);
    const std::size_t onlyForm = random.below(formCount);
    for (std::size_t fragments = 1 + random.below(5); fragments > 0; --fragments) {
        text += fragment(random, isMixed ? random.below(formCount) : onlyForm);
        while (!random.oneIn(3)) text += random.pick(fillers);
        text.append(random.below(18), ' ');
    }
    for (std::size_t slips = random.oneIn(3) ? 1 + random.below(3) : 0; slips > 0; --slips) {
        slip(random, text);
    }
    return replaceInvalidUTF8(text);
}

}  // namespace clipvane::test
