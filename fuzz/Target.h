// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <utility>

#include <clipvane/Fatal.h>
#include "judges/TimecodeJudge.h"

namespace clipvane::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program with a finding unless `holds`.
inline void require(bool holds, const char* property) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", property);
    std::abort();
}

/// The result of `action`, or nothing where it stops the program on purpose: numbers that no frame
/// count can hold do so, and hostile files reach them. A judge throws its own kind of stop.
template <class Action>
auto unlessFatal(Action action) -> std::optional<decltype(action())> {
    struct Stop {};
    setFatalHandler([](std::string_view) { throw Stop(); });
    try {
        return action();
    } catch (const Stop&) {
    } catch (const test::Overflow&) {
    }
    return std::nullopt;
}

}  // namespace clipvane::fuzz
