// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include <clipvane/UUID.h>

namespace clipvane {

/// The identifiers of numbered things: each is drawn when it is first asked for, and stays. A
/// million that nobody asks for cost nothing.
class LazyIdentifiers {
  public:
    LazyIdentifiers() = default;
    /// A copy draws by itself what was not drawn yet.
    LazyIdentifiers(const LazyIdentifiers& other) : known(other.known) {}
    LazyIdentifiers(LazyIdentifiers&&) noexcept = default;
    LazyIdentifiers& operator=(LazyIdentifiers&&) noexcept = default;
    ~LazyIdentifiers() = default;

    UUID of(std::uint32_t index);
    void set(std::uint32_t index, const UUID& id) { known.insert_or_assign(index, id); }
    void forget(std::uint32_t index) noexcept { known.erase(index); }

  private:
    std::unordered_map<std::uint32_t, UUID> known;
    std::unique_ptr<UUIDGenerator> generator;  ///< null until it is needed
};

}  // namespace clipvane
