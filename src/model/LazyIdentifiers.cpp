// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/detail/LazyIdentifiers.h>

namespace clipvane {

UUID LazyIdentifiers::of(std::uint32_t index) {
    if (const auto found = known.find(index); found != known.end()) return found->second;
    if (!generator) generator = std::make_unique<UUIDGenerator>();
    return known.emplace(index, generator->next()).first->second;
}

}  // namespace clipvane
