// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>
#include "base/AtomicFile.h"

namespace clipvane {

// A text that an event after the other is added to. Its form is a class that is made from the
// document; `head()` is what stands before the events, `append(text, event)` adds one.

/// The whole text at once.
template <class Form>
std::string eventText(const TimelineDocument& document) {
    Form form(document);
    std::string text(form.head());
    for (const auto& event : document.events) form.append(text, event);
    return text;
}

/// In bytes. Small enough to stay in the processor's cache, large enough to be worth a system call.
inline constexpr std::size_t chunkSize = std::size_t{256} << 10;

/// Writes the text to `url` atomically, in chunks of about `chunkSize`, without ever holding the
/// whole of it. Fails with the system's error.
template <class Form>
Result<void> writeEventText(const TimelineDocument& document,
                            const std::filesystem::path& url) try {
    auto file = AtomicFile::create(url);
    if (!file) return tl::unexpected(std::move(file.error()));
    Form form(document);
    std::string chunk;
    chunk.reserve(chunkSize + chunkSize / 4);
    chunk += form.head();
    for (const auto& event : document.events) {
        form.append(chunk, event);
        if (chunk.size() < chunkSize) continue;
        if (auto written = file->write(chunk); !written) return written;
        chunk.clear();
    }
    if (auto written = file->write(chunk); !written) return written;
    return file->commit();
} catch (const std::bad_alloc&) {
    return tl::unexpected(fileError("written", url, ENOMEM));
} catch (const std::length_error&) {
    return tl::unexpected(fileError("written", url, ENOMEM));
}

}  // namespace clipvane
