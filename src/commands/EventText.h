// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <new>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>

#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>
#include <clipvane/detail/PackedTimecode.h>
#include "base/AtomicFile.h"
#include "base/GrowingText.h"

namespace clipvane {

// A text that an event after the other is added to. Its form is a class that is made from the
// document; `begin(text)` puts what stands before the events, `append(text, event)` puts one, which
// is a `KeptEvent`.

/// Puts a packed timecode.
inline void putTimecode(GrowingText& text, PackedTimecode timecode) {
    const std::span<char, twoDigitLength> to(text.room(twoDigitLength), twoDigitLength);
    timecode.write(to);
    text.endAt(to.data() + to.size());
}

/// The whole text at once.
template <class Form>
std::string eventText(const TimelineDocument& document) {
    Form form(document);
    GrowingText text;
    form.begin(text);
    for (std::size_t row = 0; row < document.events.size(); ++row) {
        form.append(text, document.events.kept(row));
    }
    return text.take();
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
    GrowingText chunk;
    form.begin(chunk);
    for (std::size_t row = 0; row < document.events.size(); ++row) {
        form.append(chunk, document.events.kept(row));
        if (chunk.size() < chunkSize) continue;
        if (auto written = file->write(chunk.view()); !written) return written;
        chunk.clear();
    }
    if (auto written = file->write(chunk.view()); !written) return written;
    return file->commit();
} catch (const std::bad_alloc&) {
    return tl::unexpected(fileError("written", url, ENOMEM));
} catch (const std::length_error&) {
    return tl::unexpected(fileError("written", url, ENOMEM));
}

}  // namespace clipvane
