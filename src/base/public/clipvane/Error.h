// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace clipvane {

/// A failure that the user is told about.
struct Error {
    std::string domain;       ///< who raised it: "Clipvane", or "POSIX" for the system's errors
    int code = 0;             ///< within the domain; an errno value in "POSIX"
    std::string description;  ///< one sentence for the user, UTF-8

    bool operator==(const Error&) const = default;
};

template <class Value>
using Result = tl::expected<Value, Error>;

/// The system's error `code` (an errno value) met while doing something to the file at `path`:
/// "The file "cut.edl" could not be read: Permission denied." for the action "read".
Error fileError(std::string_view action, const std::filesystem::path& path, int code);

/// The last component of `path` as text, slashes behind it left out; bytes that are not valid UTF-8
/// become U+FFFD.
std::string displayName(const std::filesystem::path& path);

}  // namespace clipvane
