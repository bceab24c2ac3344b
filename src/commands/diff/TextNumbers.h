// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace clipvane::diff {

/// Gives texts numbers: equal ones for canonically equivalent texts. The empty text is 0. Texts are
/// UTF-8.
class TextNumbers {
  public:
    std::uint32_t of(std::string_view text);

  private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    std::uint32_t numberOfNew(std::string_view text);

    std::unordered_map<std::string, std::uint32_t, Hash, std::equal_to<>> numbers{{"", 0}};
    std::uint32_t next = 1;
};

/// Whether two texts, in UTF-8, are canonically equivalent.
bool areEquivalent(std::string_view a, std::string_view b);

}  // namespace clipvane::diff
