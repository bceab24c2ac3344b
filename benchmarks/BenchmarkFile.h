// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string_view>

namespace clipvane {

/// A file of the benchmark's own in the folder for temporary files, removed at the end of its life.
class BenchmarkFile {
  public:
    BenchmarkFile(std::string_view extension, std::string_view content);
    BenchmarkFile(const BenchmarkFile&) = delete;
    BenchmarkFile& operator=(const BenchmarkFile&) = delete;
    ~BenchmarkFile();

    const std::filesystem::path& path() const { return file; }

  private:
    std::filesystem::path file;
};

}  // namespace clipvane
