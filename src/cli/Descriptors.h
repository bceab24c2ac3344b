// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include <clipvane/Error.h>
#include "base/File.h"

namespace clipvane::cli {

// Streams that are there already: the standard files, and those that a shell opens for `<(...)`.

/// The number N of a descriptor named /dev/fd/N or /proc/self/fd/N, or as /dev/stdin, /dev/stdout
/// or /dev/stderr. Nothing for any other name.
std::optional<int> namedDescriptor(const std::filesystem::path& path);

/// Reads to the end, and waits for more where the stream itself would not. Fails with the system's
/// error.
Result<FileBytes> readStream(int descriptor);

/// Writes all of `bytes`, waiting likewise. Zero or an errno value. A pipe that nobody reads any
/// more ends the program as SIGPIPE does.
int writeStream(int descriptor, std::string_view bytes);

/// Makes the standard files that are closed fail where they are used, so that no other file takes
/// their numbers; lets a file-size limit be an error like others.
void prepareStandardFiles();

}  // namespace clipvane::cli
