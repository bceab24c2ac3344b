// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdlib>

namespace clipvane::test {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool isInstrumented = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool isInstrumented = true;
#else
inline constexpr bool isInstrumented = false;
#endif
#else
inline constexpr bool isInstrumented = false;
#endif

/// The number of generated cases that a test looks at: all of `count` in an optimised build, a
/// quarter of them in a debug build, and a sixteenth in a sanitizer build, which takes up to a
/// hundred times as long for one.
constexpr std::size_t scaled(std::size_t count) {
#ifdef NDEBUG
    return isInstrumented ? count / 16 : count;
#else
    return count / (isInstrumented ? 16 : 4);
#endif
}

/// `scaled(count)`, unless CLIPVANE_TEST_CASES asks for another number: for long runs.
inline std::size_t generatedCases(std::size_t count) {
    const char* const chosen = std::getenv("CLIPVANE_TEST_CASES");
    return chosen != nullptr ? std::strtoull(chosen, nullptr, 10) : scaled(count);
}

}  // namespace clipvane::test
