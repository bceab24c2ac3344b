// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/Fatal.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace clipvane {
namespace {

FatalHandler fatalHandler = nullptr;

}  // namespace

void fatal(std::string_view reason) {
    if (fatalHandler != nullptr) fatalHandler(reason);
    std::fprintf(stderr, "clipvane: %.*s\n", static_cast<int>(reason.size()), reason.data());
    std::abort();
}

FatalHandler setFatalHandler(FatalHandler handler) {
    return std::exchange(fatalHandler, handler);
}

}  // namespace clipvane
