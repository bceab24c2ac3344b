// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace clipvane::diff {

/// What is said of an event.
enum class Word : std::uint8_t {
    added,        ///< "new": no partner, and OLD lacks at least one of its frames
    again,        ///< no partner, though OLD holds all of it: a further use
    trimmed,      ///< longer or shorter in the source
    slipped,      ///< as long as it was, of another part of the source
    retimed,      ///< of the same source, at another speed
    split,        ///< its partner has several partners
    joined,       ///< it has several partners
    shifted,      ///< pushed along on its track
    moved,        ///< taken past others that stay in order
    otherTrack,   ///< its partner has another track text
    renamed,      ///< its partner has another name
    partly,       ///< none of these, but not all of its frames are its partner's
    same,         ///< none of these
    gone,         ///< of OLD: no partner, and NEW lacks at least one of its frames
    fewer,        ///< of OLD: no partner, though NEW holds all of it: one use less
    notCompared,  ///< of either: without frames, and without an equal
};

inline constexpr std::size_t wordCount = static_cast<std::size_t>(Word::notCompared) + 1;

/// The words as they are written, in the order of `Word`.
inline constexpr std::array<std::string_view, wordCount> wordTexts{
    "new",   "again", "trimmed", "slipped", "retimed", "split", "joined", "shifted",
    "moved", "track", "renamed", "partly",  "same",    "gone",  "fewer",  "not compared"};

/// A set of words.
class Words {
  public:
    constexpr Words() = default;
    constexpr Words(std::initializer_list<Word> words) {
        for (const Word word : words) add(word);
    }

    constexpr void add(Word word) { bits |= bit(word); }
    constexpr bool has(Word word) const { return (bits & bit(word)) != 0; }
    constexpr bool hasAny(Words others) const { return (bits & others.bits) != 0; }
    constexpr bool empty() const { return bits == 0; }

    /// Calls `take` with each of them, in the order of `Word`.
    template <class Take>
    constexpr void forEach(Take take) const {
        for (std::uint32_t rest = bits; rest != 0; rest &= rest - 1) {
            take(static_cast<Word>(std::countr_zero(rest)));
        }
    }

    constexpr bool operator==(const Words&) const = default;

  private:
    static constexpr std::uint32_t bit(Word word) {
        return std::uint32_t{1} << static_cast<unsigned>(word);
    }

    std::uint32_t bits = 0;
};

}  // namespace clipvane::diff
