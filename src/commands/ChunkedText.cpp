// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/ChunkedText.h"

#include <cerrno>
#include <new>
#include <stdexcept>
#include <utility>

#include "base/AtomicFile.h"

namespace clipvane {

std::string wholeText(const ChunkedText& text) {
    std::string whole;
    static_cast<void>(text([&](std::string_view chunk) -> Result<void> {
        whole += chunk;
        return {};
    }));
    return whole;
}

Result<void> writeText(const ChunkedText& text, const std::filesystem::path& url) try {
    auto file = AtomicFile::create(url);
    if (!file) return tl::unexpected(std::move(file.error()));
    auto written = text([&](std::string_view chunk) { return file->write(chunk); });
    if (!written) return written;
    return file->commit();
} catch (const std::bad_alloc&) {
    return tl::unexpected(fileError("written", url, ENOMEM));
} catch (const std::length_error&) {
    return tl::unexpected(fileError("written", url, ENOMEM));
}

}  // namespace clipvane
