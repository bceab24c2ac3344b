// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "BenchmarkFile.h"

#include <fstream>

#include <clipvane/UUID.h>

namespace clipvane {

BenchmarkFile::BenchmarkFile(std::string_view extension, std::string_view content)
    : file(std::filesystem::temp_directory_path() /
           ("clipvane-" + UUIDGenerator().next().text() + std::string(extension))) {
    std::ofstream(file, std::ios::binary)
        .write(content.data(), static_cast<std::streamsize>(content.size()));
}

BenchmarkFile::~BenchmarkFile() {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
}

}  // namespace clipvane
