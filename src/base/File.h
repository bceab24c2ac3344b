// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string_view>

#include <clipvane/Error.h>

namespace clipvane {

/// The bytes of a file, as they were read.
class FileBytes {
  public:
    FileBytes() = default;
    FileBytes(std::unique_ptr<char[]> bytes, std::size_t count)
        : bytes(std::move(bytes)), count(count) {}

    std::string_view view() const { return {bytes.get(), count}; }

  private:
    std::unique_ptr<char[]> bytes;
    std::size_t count = 0;
};

/// Reads what an open file or stream gives until its end, into room for `expected` bytes at first.
/// Where that fails, `retry` tells, with errno set, whether to go on. The error is an errno value.
tl::expected<FileBytes, int> readToEnd(int descriptor, std::size_t expected,
                                       bool (*retry)(int descriptor) = nullptr);

/// Reads the whole of the regular file at `path`, following links. Fails with the system's error
/// when it cannot be read, is a directory, or does not fit into memory; a FIFO, a device or a
/// socket is refused without waiting for it. A file that shrinks or grows meanwhile gives the bytes
/// that were there to read.
Result<FileBytes> readFile(const std::filesystem::path& path);

}  // namespace clipvane
