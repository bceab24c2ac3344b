// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace clipvane {

class FileBytes;

/// Keeps texts where they are: a view of one is good for as long as the store or a copy of it
/// lives. Nothing is ever taken out. Copies share what they have in common.
class TextStore {
  public:
    TextStore() = default;
    TextStore(const TextStore& other) : texts(other.texts) {}
    TextStore(TextStore&& other) noexcept
        : texts(std::move(other.texts)), room(std::exchange(other.room, {})) {}
    TextStore& operator=(TextStore other) noexcept {
        texts.swap(other.texts);
        std::swap(room, other.room);
        return *this;
    }
    ~TextStore() = default;

    // Keep a text without copying it.
    std::string_view keep(FileBytes bytes);
    std::string_view keep(std::string text);

    /// Keeps a copy of `text`.
    std::string_view copy(std::string_view text);

    /// Keeps `size` bytes, which the caller writes.
    std::span<char> add(std::size_t size);

  private:
    std::vector<std::shared_ptr<const void>> texts;
    std::span<char> room;  ///< what is free at the end of the newest block; this store's alone
};

}  // namespace clipvane
