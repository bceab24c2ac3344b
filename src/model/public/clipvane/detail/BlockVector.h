// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace clipvane {

/// A sequence that grows at its end, block by block. What it holds stays where it is: a large one
/// is never copied to grow, and never needs the memory of two.
template <class Element>
class BlockVector {
  public:
    BlockVector() = default;
    BlockVector(const BlockVector& other) {
        for (const auto& block : other.blocks) {
            addBlock();
            blocks.back().insert(blocks.back().end(), block.begin(), block.end());
        }
    }
    BlockVector(BlockVector&&) noexcept = default;
    BlockVector& operator=(BlockVector&&) noexcept = default;
    ~BlockVector() = default;

    std::size_t size() const {
        return blocks.empty() ? 0 : (blocks.size() - 1) * blockSize + blocks.back().size();
    }

    Element& operator[](std::size_t index) { return blocks[index / blockSize][index % blockSize]; }
    const Element& operator[](std::size_t index) const {
        return blocks[index / blockSize][index % blockSize];
    }

    template <class Action>
    void forEach(Action action) {
        for (auto& block : blocks) {
            for (Element& element : block) action(element);
        }
    }
    template <class Condition>
    bool allOf(Condition condition) const {
        return std::ranges::all_of(
            blocks, [&](const auto& block) { return std::ranges::all_of(block, condition); });
    }

    Element& push_back(Element element) {
        if (blocks.empty() || blocks.back().size() == blockSize) addBlock();
        return blocks.back().emplace_back(std::move(element));
    }

  private:
    static constexpr std::size_t blockSize = 1024;  ///< a power of two: found by shifting

    void addBlock() {
        std::vector<Element> block;
        block.reserve(blockSize);
        blocks.push_back(std::move(block));
    }

    std::vector<std::vector<Element>> blocks;  ///< all full but the last, and none ever grows
};

}  // namespace clipvane
