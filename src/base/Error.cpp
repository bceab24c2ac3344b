// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/Error.h>

#include <system_error>

#include "base/UTF8.h"

namespace clipvane {

Error fileError(std::string_view action, const std::filesystem::path& path, int code) {
    std::string description = "The file \"" + displayName(path) + "\" could not be ";
    description.append(action);
    description += ": " + std::generic_category().message(code) + ".";
    return {"POSIX", code, std::move(description)};
}

std::string displayName(const std::filesystem::path& path) {
    std::string_view name = path.native();
    while (name.size() > 1 && name.ends_with('/')) name.remove_suffix(1);
    if (name != "/") name.remove_prefix(name.rfind('/') + 1);  // npos + 1 is 0
    return replaceInvalidUTF8(name);
}

}  // namespace clipvane
