// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace clipvane {

/// The meanings of a few names, sorted, each of which begins with a lower-case ASCII letter. Only
/// those with the same first letter are compared.
template <class Meaning, std::size_t count>
class NameTable {
  public:
    struct Entry {
        std::string_view name;
        Meaning meaning;
    };

    consteval explicit NameTable(const std::array<Entry, count>& sorted) : entries(sorted) {
        if (!std::ranges::is_sorted(entries, {}, &Entry::name)) throw "the names are not sorted";
        for (std::size_t letter = 0; letter < firsts.size(); ++letter) {
            const auto isBefore = [&](const Entry& entry) { return letterOf(entry.name) < letter; };
            firsts[letter] = static_cast<std::size_t>(std::ranges::count_if(entries, isBefore));
        }
    }

    /// The meaning of `name`, which is not empty; nothing if it is not in the table.
    constexpr std::optional<Meaning> find(std::string_view name) const {
        const std::size_t letter = letterOf(name);
        if (letter >= letters) return std::nullopt;
        for (std::size_t i = firsts[letter]; i < firsts[letter + 1]; ++i) {
            if (entries[i].name == name) return entries[i].meaning;
        }
        return std::nullopt;
    }

  private:
    static constexpr std::size_t letters = 26;
    static constexpr std::size_t letterOf(std::string_view name) {
        return static_cast<unsigned char>(name.front()) - std::size_t{'a'};
    }

    std::array<Entry, count> entries;
    std::array<std::size_t, letters + 1> firsts{};  ///< where the names with a letter begin
};

}  // namespace clipvane
