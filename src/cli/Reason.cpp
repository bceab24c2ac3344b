// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Reason.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace clipvane::cli {

Error because(std::string reason) {
    return {"clipvane-cli", 0, std::move(reason)};
}

Error systemError(std::string_view action, int code) {
    std::string reason = "could not be ";
    reason.append(action);
    reason += ": " + std::generic_category().message(code);
    return {"POSIX", code, std::move(reason)};
}

Error reworded(const Error& error, std::string_view action) {
    if (error.domain != "POSIX") return error;
    // The one kind of file that is refused without a word of the system's own.
    if (error.code == EINVAL) {
        return because("could not be " + std::string(action) + ": it is not a regular file");
    }
    return systemError(action, error.code);
}

}  // namespace clipvane::cli
