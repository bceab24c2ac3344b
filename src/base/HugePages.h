// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <cstdint>

namespace clipvane {

/// Tells the kernel that the `count` bytes at `storage` will all be written soon, so that it may
/// hand them out in large pages. First touching memory is what reading a large timeline costs most;
/// only a hint, and one that small storage does not need.
inline void adviseHugePages(void* storage, std::size_t count) {
    constexpr std::uintptr_t page = 4096;
    constexpr std::size_t worthwhile = std::size_t{4} << 20;
    if (count < worthwhile) return;
    const auto begin = (reinterpret_cast<std::uintptr_t>(storage) + page - 1) & ~(page - 1);
    const auto end = (reinterpret_cast<std::uintptr_t>(storage) + count) & ~(page - 1);
    ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
}

}  // namespace clipvane
