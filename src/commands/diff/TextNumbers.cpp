// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/TextNumbers.h"

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>

#include <cstring>
#include <random>
#include <utility>

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

std::uint64_t drawnKey() {
    std::random_device source;
    return std::uint64_t{source()} << 32 | source();
}

/// Both halves of the product, so that each bit depends on all bits of both factors.
std::uint64_t folded(std::uint64_t a, std::uint64_t b) {
    __extension__ using Product = unsigned __int128;
    const Product product = Product{a} * b;
    return static_cast<std::uint64_t>(product >> 64) ^ static_cast<std::uint64_t>(product);
}

}  // namespace

TextNumbers::TextNumbers() : keys{drawnKey(), drawnKey() | 1} {}

std::uint32_t TextNumbers::of(std::string_view text) {
    if (text.empty()) return 0;
    const std::uint32_t hash = hashOf(text);
    const Known& known = table[placeOf(text, hash)];
    if (!known.text.empty()) return known.number;
    const std::uint32_t number = numberOfNew(text);
    add({text, hash, number});
    return number;
}

/// Eight bytes at a time: a list asks for two texts an event, most of them short.
std::uint32_t TextNumbers::hashOf(std::string_view text) const {
    constexpr std::size_t step = sizeof(std::uint64_t);
    std::uint64_t hash = keys[0] ^ text.size();
    const auto mix = [&](const char* from, std::size_t size) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, from, size);
        hash = folded(hash ^ bytes, keys[1]);
    };
    if (text.size() < step) {
        mix(text.data(), text.size());
    } else {
        const char* const last = text.data() + text.size() - step;
        for (const char* from = text.data(); from < last; from += step) mix(from, step);
        mix(last, step);
    }
    return static_cast<std::uint32_t>(hash);
}

/// Where the text is in the table, or where it would be.
std::size_t TextNumbers::placeOf(std::string_view text, std::uint32_t hash) const {
    const std::size_t mask = table.size() - 1;
    for (std::size_t place = hash & mask;; place = (place + 1) & mask) {
        const Known& known = table[place];
        if (known.text.empty() || (known.hash == hash && known.text == text)) return place;
    }
}

/// Adds a text that is not known, unless it has come in by its own normalization.
void TextNumbers::add(const Known& known) {
    if (2 * (count + 1) > table.size()) {
        const auto old = std::exchange(table, std::vector<Known>(2 * table.size()));
        for (const Known& one : old) {
            if (!one.text.empty()) table[placeOf(one.text, one.hash)] = one;
        }
    }
    Known& place = table[placeOf(known.text, known.hash)];
    if (place.text.empty()) ++count;
    place = known;
}

/// The number of a text that has none in this spelling.
std::uint32_t TextNumbers::numberOfNew(std::string_view text) {
    if (isASCII(text)) return next++;
    std::string usual = normalized(text);
    const std::uint32_t hash = hashOf(usual);
    const Known& known = table[placeOf(usual, hash)];
    if (!known.text.empty()) return known.number;
    normalizedTexts.push_back(std::move(usual));
    add({normalizedTexts.back(), hash, next});
    return next++;
}

bool areEquivalent(std::string_view a, std::string_view b) {
    return a == b || normalized(a) == normalized(b);
}

}  // namespace clipvane::diff
