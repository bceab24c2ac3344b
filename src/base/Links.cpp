// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/Links.h"

#include <cerrno>
#include <system_error>

#include "base/Descriptor.h"

namespace clipvane {
namespace {

constexpr int mostLinks = 40;  // the kernel's own limit

/// Zero or an errno value.
int readLink(const std::filesystem::path& link, std::filesystem::path& target) {
    std::error_code error;
    do {
        target = std::filesystem::read_symlink(link, error);
    } while (error.value() == EINTR);
    return error.value();
}

}  // namespace

int lookAt(const std::filesystem::path& path, struct stat& status) {
    return uninterrupted([&] { return ::lstat(path.c_str(), &status); }) == 0 ? 0 : errno;
}

int followLinks(std::filesystem::path& path, bool (*isAccepted)(const struct stat& status)) {
    for (int followed = 0; followed <= mostLinks; ++followed) {
        struct stat status {};
        if (const int code = lookAt(path, status)) return code == ENOENT ? 0 : code;
        if (!isAccepted(status)) return EPERM;
        if (!S_ISLNK(status.st_mode)) return 0;
        std::filesystem::path target;
        if (const int code = readLink(path, target)) return code;
        path = path.parent_path() / target;  // an absolute target replaces the folder
    }
    return ELOOP;
}

}  // namespace clipvane
