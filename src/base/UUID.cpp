// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/UUID.h>

#include <charconv>
#include <cstring>

namespace clipvane {
namespace {

constexpr std::size_t textLength = 36;

constexpr bool isHyphenPosition(std::size_t position) {
    return position == 8 || position == 13 || position == 18 || position == 23;
}

std::mt19937_64 seededEngine() {
    std::random_device source;
    std::array<std::random_device::result_type, 8> words{};
    for (auto& word : words) word = source();
    std::seed_seq seed(words.begin(), words.end());
    return std::mt19937_64(seed);
}

}  // namespace

std::string UUID::text() const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    text.reserve(textLength);
    for (const std::uint8_t byte : bytes) {
        if (isHyphenPosition(text.size())) text += '-';
        text += digits[byte >> 4];
        text += digits[byte & 0x0F];
    }
    return text;
}

std::optional<UUID> UUID::parse(std::string_view text) {
    if (text.size() != textLength) return std::nullopt;
    UUID uuid;
    std::size_t position = 0;
    for (std::uint8_t& byte : uuid.bytes) {
        if (isHyphenPosition(position) && text[position++] != '-') return std::nullopt;
        const char* const digits = text.data() + position;
        if (std::from_chars(digits, digits + 2, byte, 16).ptr != digits + 2) return std::nullopt;
        position += 2;
    }
    return uuid;
}

UUIDGenerator::UUIDGenerator() : engine(seededEngine()) {}

UUID UUIDGenerator::next() {
    const std::array<std::uint64_t, 2> words{engine(), engine()};
    UUID uuid;
    std::memcpy(uuid.bytes.data(), words.data(), sizeof words);
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40);  // version 4
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);  // RFC 4122 variant
    return uuid;
}

}  // namespace clipvane
