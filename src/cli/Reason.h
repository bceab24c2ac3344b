// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <clipvane/Error.h>

namespace clipvane::cli {

// Errors as the rest of a message that begins with the file's name: "cut.edl: could not be read:
// Permission denied".

/// An error of this program's own.
Error because(std::string reason);

/// The system's error `code` (an errno value) met while a file was being `action`: "read" or
/// "written".
Error systemError(std::string_view action, int code);

/// `error`, which the logic below gave about a file that was being `action`, for such a message.
Error reworded(const Error& error, std::string_view action);

}  // namespace clipvane::cli
