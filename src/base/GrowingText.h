// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace clipvane {

/// A text that grows at its end. Putting a piece takes a few instructions where it is called, which
/// counts where there are millions of short ones.
class GrowingText {
  public:
    GrowingText() = default;
    GrowingText(const GrowingText&) = delete;
    GrowingText& operator=(const GrowingText&) = delete;

    std::size_t size() const { return static_cast<std::size_t>(end - bytes.data()); }
    std::string_view view() const { return {bytes.data(), size()}; }
    /// Forgets the text and keeps its memory.
    void clear() { end = bytes.data(); }

    void put(char c) {
        *room(1) = c;
        ++end;
    }
    void put(std::string_view piece) {
        std::char_traits<char>::copy(room(piece.size()), piece.data(), piece.size());
        end += piece.size();
    }
    /// Puts `number` in decimal.
    void putNumber(std::uint64_t number) {
        constexpr std::size_t mostDigits = 20;
        char* const to = room(mostDigits);
        end = std::to_chars(to, to + mostDigits, number).ptr;
    }

    /// Where up to `size` bytes may be written; `endAt` makes them part of the text.
    char* room(std::size_t size) {
        if (static_cast<std::size_t>(limit - end) < size) grow(size);
        return end;
    }
    void endAt(char* behind) { end = behind; }

    /// The text, which is empty then.
    std::string take();

  private:
    void grow(std::size_t size);

    std::string bytes;         ///< the text and what is left for its growth
    char* end = bytes.data();  ///< of the text
    const char* limit = end;   ///< the end of `bytes`
};

}  // namespace clipvane
