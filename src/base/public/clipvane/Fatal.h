// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace clipvane {

/// Called with the reason instead of ending the program. It must not return: it throws, jumps or
/// ends the process itself.
using FatalHandler = void (*)(std::string_view reason);

/// Stops the program because of a programming error or of a value that no frame count can hold.
/// Writes "clipvane: " and the reason to standard error, then aborts. Nothing recovers from it.
[[noreturn]] void fatal(std::string_view reason);

/// Installs a handler, or removes it with nullptr; returns the earlier one. For programs that use
/// the library and must survive hostile files.
FatalHandler setFatalHandler(FatalHandler handler);

}  // namespace clipvane
