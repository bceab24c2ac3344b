// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/stat.h>

#include <filesystem>

namespace clipvane {

/// What lies at `path`, a link as itself. Zero or an errno value.
int lookAt(const std::filesystem::path& path, struct stat& status);

inline bool acceptAnything(const struct stat&) {
    return true;
}

/// Leads `path` through its links, as many as the kernel follows; a dangling link leads to a place
/// without a file. `isAccepted` is asked about each link and about what lies at the end. Zero or an
/// errno value: EPERM for what is not accepted.
int followLinks(std::filesystem::path& path,
                bool (*isAccepted)(const struct stat& status) = acceptAnything);

}  // namespace clipvane
