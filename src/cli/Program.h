// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Status.h"

namespace clipvane::cli {

/// Does what the arguments tell, as main gets them. The standard files must be prepared.
Status runProgram(int argc, const char* const* argv);

}  // namespace clipvane::cli
