// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/TextNumbers.h"

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>

#include "base/UTF8.h"

namespace clipvane::diff {
namespace {

/// The text in normalization form D, which canonically equivalent texts have in common. The text
/// itself where that cannot be had.
std::string normalized(std::string_view text) {
    std::string result;
    UErrorCode error = U_ZERO_ERROR;
    const icu::Normalizer2* const form = icu::Normalizer2::getNFDInstance(error);
    if (U_FAILURE(error)) return std::string(text);
    icu::StringByteSink<std::string> sink(&result);
    form->normalizeUTF8(0, {text.data(), static_cast<std::int32_t>(text.size())}, sink, nullptr,
                        error);
    return U_SUCCESS(error) ? result : std::string(text);
}

}  // namespace

std::uint32_t TextNumbers::of(std::string_view text) {
    if (const auto found = numbers.find(text); found != numbers.end()) return found->second;
    const std::uint32_t number = numberOfNew(text);
    numbers.emplace(text, number);
    return number;
}

/// The number of a text that has none in this spelling.
std::uint32_t TextNumbers::numberOfNew(std::string_view text) {
    if (isASCII(text)) return next++;
    const auto [equal, isNew] = numbers.try_emplace(normalized(text), next);
    if (isNew) ++next;
    return equal->second;
}

bool areEquivalent(std::string_view a, std::string_view b) {
    return a == b || normalized(a) == normalized(b);
}

}  // namespace clipvane::diff
