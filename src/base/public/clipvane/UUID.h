// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>

namespace clipvane {

/// A 128-bit identifier.
struct UUID {
    std::array<std::uint8_t, 16> bytes{};

    bool operator==(const UUID&) const = default;

    /// 36 characters, hexadecimal digits in upper case, hyphens after 8, 12, 16 and 20 digits.
    std::string text() const;

    /// Reads the form that `text` writes, digits in either case. Nothing for anything else.
    static std::optional<UUID> parse(std::string_view text);
};

/// Draws random identifiers (version 4, RFC 4122). Seeded once from the system's source of
/// randomness: asking that source for each of a million events would cost more than reading them.
class UUIDGenerator {
  public:
    UUIDGenerator();

    UUID next();

  private:
    std::mt19937_64 engine;
};

}  // namespace clipvane
