// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include <clipvane/Error.h>

namespace clipvane::cli {

/// Thrown where the logic would stop the program: by a frame count or a rate beyond 64 bits. One
/// file that holds one must not cost the others.
struct ImpossibleNumber {
    std::string reason;
};

/// Lets `fatal` throw `ImpossibleNumber` from now on.
void throwImpossibleNumbers();

/// The error for which the exception being handled stands: an impossible number, or no memory.
/// Throws any other again.
Error errorOfException();

/// What `work` gives, a `Result`; its error also where it would stop the program or runs out of
/// memory.
template <class Work>
auto possibly(Work work) -> decltype(work()) {
    try {
        return work();
    } catch (...) {
        return tl::unexpected(errorOfException());
    }
}

}  // namespace clipvane::cli
