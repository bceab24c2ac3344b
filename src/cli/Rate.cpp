// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Rate.h"

#include "base/Characters.h"
#include "base/Number.h"
#include "import/Scan.h"

namespace clipvane::cli {
namespace {

bool takeDigits(std::string_view& rest) {
    return !takeWhile(rest, isASCIIDigit).empty();
}

/// Digits, with a fraction if it is there; nothing when anything else follows.
std::optional<double> parseDecimal(std::string_view text) {
    std::string_view rest = text;
    if (!takeDigits(rest)) return std::nullopt;
    if (takeCharacter(rest, '.') && !takeDigits(rest)) return std::nullopt;
    if (!rest.empty()) return std::nullopt;
    return parseNumber(text);
}

std::optional<double> parseWhole(std::string_view text) {
    std::string_view rest = text;
    if (!takeDigits(rest) || !rest.empty()) return std::nullopt;
    return parseNumber(text);
}

std::optional<double> parseFraction(std::string_view text, std::size_t slash) {
    const auto numerator = parseWhole(text.substr(0, slash));
    const auto denominator = parseWhole(text.substr(slash + 1));
    if (!numerator || !denominator || !(*denominator > 0)) return std::nullopt;
    return *numerator / *denominator;
}

}  // namespace

std::optional<double> parseRate(std::string_view text) {
    const std::size_t slash = text.find('/');
    const auto rate =
        slash == std::string_view::npos ? parseDecimal(text) : parseFraction(text, slash);
    if (!rate || !(*rate > 0 && *rate <= largestRate)) return std::nullopt;
    return rate;
}

}  // namespace clipvane::cli
