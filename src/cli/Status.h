// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

namespace clipvane::cli {

/// How the program ends.
enum class Status {
    ok = 0,
    failed = 1,      ///< a file could not be read or written; the others are done
    wrongUse = 2,    ///< options or arguments that do not go together; nothing was done
    suspicious = 3,  ///< asked for by --strict; `failed` wins over it
};

}  // namespace clipvane::cli
