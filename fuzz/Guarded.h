#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/Fatal.h"

namespace clipvane {

/// Numbers that no frame count can hold stop the program on purpose, and hostile files reach them.
/// Runs `action` so that such a stop is no finding.
template <class Action>
void guarded(Action action) {
    struct Stop {};
    setFatalHandler([](std::string_view) { throw Stop(); });
    try {
        action();
    } catch (const Stop&) {
    }
    setFatalHandler(nullptr);
}

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

}  // namespace clipvane
