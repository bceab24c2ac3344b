// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/AtomicFile.h"

namespace clipvane::test {

/// Writes `text` as the whole content of the file at `destination`.
inline Result<void> writeFileAtomically(const std::filesystem::path& destination,
                                        std::string_view text) {
    auto file = AtomicFile::create(destination);
    if (!file) return tl::unexpected(std::move(file.error()));
    if (auto written = file->write(text); !written) return written;
    return file->commit();
}

}  // namespace clipvane::test
