// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <compare>
#include <filesystem>
#include <optional>

namespace clipvane::cli {

/// What makes two names one file.
struct FileIdentity {
    dev_t device = 0;
    ino_t number = 0;

    auto operator<=>(const FileIdentity&) const = default;
};

/// Of a regular file, links followed; nothing when there is none.
inline std::optional<FileIdentity> identityOf(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino};
}
inline std::optional<FileIdentity> identityOf(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino};
}

}  // namespace clipvane::cli
