// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>

namespace clipvane::test {

/// Random choices of a test, the same ones in every run unless CLIPVANE_TEST_SEED says otherwise.
/// Prints its seed.
class Random {
  public:
    Random() : Random(seedOfRun()) {}
    explicit Random(std::uint64_t seed) : engine(seed) {
        std::cout << "random choices from seed " << seed << '\n';
    }

    std::size_t below(std::size_t count) { return engine() % count; }
    bool oneIn(std::size_t count) { return below(count) == 0; }

    template <class Pool>
    const auto& pick(const Pool& pool) {
        return pool[below(std::size(pool))];
    }

  private:
    static std::uint64_t seedOfRun() {
        const char* const chosen = std::getenv("CLIPVANE_TEST_SEED");
        return chosen != nullptr ? std::strtoull(chosen, nullptr, 10) : 20;
    }

    std::mt19937_64 engine;
};

}  // namespace clipvane::test
