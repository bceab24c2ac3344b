// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/detail/TextStore.h>

#include <algorithm>
#include <utility>

#include "base/File.h"

namespace clipvane {
namespace {

/// In bytes. A text that would waste much of a block gets one of its own.
constexpr std::size_t blockSize = std::size_t{64} << 10;
constexpr std::size_t largestShare = blockSize / 8;

}  // namespace

std::string_view TextStore::keep(FileBytes bytes) {
    const auto kept = std::make_shared<const FileBytes>(std::move(bytes));
    texts.push_back(kept);
    return kept->view();
}

std::string_view TextStore::keep(std::string text) {
    const auto kept = std::make_shared<const std::string>(std::move(text));
    texts.push_back(kept);
    return *kept;
}

std::string_view TextStore::copy(std::string_view text) {
    const std::span<char> to = add(text.size());
    std::ranges::copy(text, to.begin());
    return {to.data(), to.size()};
}

std::span<char> TextStore::add(std::size_t size) {
    if (size > room.size()) {
        const std::size_t count = size > largestShare ? size : blockSize;
        const auto block = std::make_shared_for_overwrite<char[]>(count);
        texts.push_back(block);
        if (count == size) return {block.get(), size};
        room = {block.get(), count};
    }
    const std::span<char> taken = room.first(size);
    room = room.subspan(size);
    return taken;
}

}  // namespace clipvane
