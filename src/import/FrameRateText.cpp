// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/FrameRateText.h"

#include "base/Characters.h"
#include "base/Number.h"
#include "import/Scan.h"

namespace clipvane {
namespace {

constexpr std::string_view longS = "\u017F";

/// Removes `word`, which is in lower case, from the front of `rest`, if it stands there in upper or
/// lower case.
bool takeWord(std::string_view& rest, std::string_view word) {
    std::string_view after = rest;
    for (const char letter : word) {
        if (after.empty()) return false;
        if (asciiLower(after.front()) == letter) {
            after.remove_prefix(1);
        } else if (letter == 's' && after.starts_with(longS)) {
            after.remove_prefix(longS.size());
        } else {
            return false;
        }
    }
    rest = after;
    return true;
}

std::string_view takeDigits(std::string_view& rest) {
    return takeWhile(rest, isASCIIDigit);
}

void skipWhiteSpace(std::string_view& rest) {
    takeWhile(rest, isWhiteSpace);
}

bool takeQuote(std::string_view& rest) {
    return takeCharacter(rest, '"') || takeCharacter(rest, '\'');
}

/// Digits with an optional fraction.
std::optional<NamedRate> takeRate(std::string_view& rest) {
    const std::string_view start = rest;
    if (takeDigits(rest).empty()) return std::nullopt;
    std::string_view fraction = rest;
    if (takeCharacter(fraction, '.') && !takeDigits(fraction).empty()) rest = fraction;
    const double fps = parseNumber(start.substr(0, start.size() - rest.size())).value_or(0);
    return NamedRate{fps, fps > 0};
}

}  // namespace

std::optional<NamedRate> matchNamedRate(std::string_view text) {
    if (!takeWord(text, "frame rate") && !takeWord(text, "framerate") && !takeWord(text, "fps")) {
        return std::nullopt;
    }
    skipWhiteSpace(text);
    if (!takeCharacter(text, ':') && !takeCharacter(text, '=')) return std::nullopt;
    skipWhiteSpace(text);
    return takeRate(text);
}

std::optional<NamedRate> matchElement(std::string_view text) {
    if (!takeWord(text, "<timebase>")) return std::nullopt;
    skipWhiteSpace(text);
    const auto rate = takeRate(text);
    skipWhiteSpace(text);
    if (!takeWord(text, "</timebase>")) return std::nullopt;
    return rate;
}

std::optional<NamedRate> matchAttribute(std::string_view text) {
    if (!takeWord(text, "timebase=") || !takeQuote(text)) return std::nullopt;
    const auto rate = takeRate(text);
    if (!takeQuote(text)) return std::nullopt;
    return rate;
}

std::optional<NamedRate> matchFrameDuration(std::string_view text) {
    if (!takeWord(text, "frameduration=") || !takeQuote(text)) return std::nullopt;
    const auto duration = parseNumber(takeDigits(text));
    if (!duration || !takeCharacter(text, '/')) return std::nullopt;
    const auto timescale = parseNumber(takeDigits(text));
    if (!timescale || !takeWord(text, "s") || !takeQuote(text)) return std::nullopt;
    return NamedRate{*timescale / *duration, *duration > 0 && *timescale > 0};
}

}  // namespace clipvane
