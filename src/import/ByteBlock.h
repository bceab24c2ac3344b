// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace clipvane {

/// Sixteen bytes that are looked at together; any processor's compiler knows a way.
using ByteBlock = std::uint8_t __attribute__((vector_size(16)));

inline ByteBlock loadBlock(const char* bytes) {
    ByteBlock block;
    std::memcpy(&block, bytes, sizeof block);
    return block;
}

/// Whether a comparison of blocks holds for any of the bytes.
template <class Comparison>
bool holdsAnywhere(const Comparison& found) {
    static_assert(sizeof found == sizeof(ByteBlock));
    std::array<std::uint64_t, 2> halves;
    std::memcpy(halves.data(), &found, sizeof halves);
    return (halves[0] | halves[1]) != 0;
}

}  // namespace clipvane
