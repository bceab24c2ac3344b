// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Impossible.h"

#include <new>
#include <stdexcept>

#include <clipvane/Fatal.h>
#include "cli/Reason.h"

namespace clipvane::cli {

void throwImpossibleNumbers() {
    setFatalHandler([](std::string_view reason) { throw ImpossibleNumber{std::string(reason)}; });
}

Error errorOfException() {
    try {
        throw;
    } catch (const ImpossibleNumber& impossible) {
        return because("it holds an impossible number: " + impossible.reason);
    } catch (const std::bad_alloc&) {
        return because("there is not enough memory for it");
    } catch (const std::length_error&) {
        return because("there is not enough memory for it");
    }
}

}  // namespace clipvane::cli
