// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace clipvane::diff {

/// Gives texts numbers: equal ones for canonically equivalent texts. The empty text is 0. Texts are
/// UTF-8, and must outlive the numbers.
class TextNumbers {
  public:
    TextNumbers();

    std::uint32_t of(std::string_view text);

  private:
    /// A text in one of its spellings; the empty one where a place in the table is free.
    struct Known {
        std::string_view text;
        std::uint32_t hash = 0;
        std::uint32_t number = 0;
    };

    std::uint32_t hashOf(std::string_view text) const;
    std::size_t placeOf(std::string_view text, std::uint32_t hash) const;
    void add(const Known& known);
    std::uint32_t numberOfNew(std::string_view text);

    // Drawn anew for each comparison: nobody can write a list whose texts all have one hash.
    std::array<std::uint64_t, 2> keys;
    std::vector<Known> table = std::vector<Known>(64);  // a power of two, at most half full
    std::size_t count = 0;
    std::deque<std::string> normalizedTexts;
    std::uint32_t next = 1;
};

/// Whether two texts, in UTF-8, are canonically equivalent.
bool areEquivalent(std::string_view a, std::string_view b);

}  // namespace clipvane::diff
