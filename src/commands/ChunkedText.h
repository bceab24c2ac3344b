#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Error.h"
#include "model/TimelineEvent.h"

namespace clipvane {

/// Takes the next piece of a text; its error ends the making of the text.
using ChunkSink = std::function<Result<void>(std::string_view chunk)>;

/// A text that is made piece by piece, each handed to the sink.
using ChunkedText = std::function<Result<void>(const ChunkSink& sink)>;

/// In bytes. Small enough to stay in the processor's cache, large enough to be worth a system call.
inline constexpr std::size_t chunkSize = std::size_t{256} << 10;

/// The text made of `head` and of what `appendEvent(std::string&, event)` adds for each event, in
/// chunks of about `chunkSize`.
template <class AppendEvent>
Result<void> makeChunks(std::string_view head, const std::vector<TimelineEvent>& events,
                        AppendEvent appendEvent, const ChunkSink& sink) {
    std::string chunk;
    chunk.reserve(chunkSize + chunkSize / 4);
    chunk += head;
    for (const TimelineEvent& event : events) {
        appendEvent(chunk, event);
        if (chunk.size() < chunkSize) continue;
        if (auto taken = sink(chunk); !taken) return taken;
        chunk.clear();
    }
    return sink(chunk);
}

/// The whole of `text` at once.
std::string wholeText(const ChunkedText& text);

/// Writes `text` to `url` atomically, without ever holding the whole of it. Fails with the system's
/// error, or with one that the making of the text gave.
Result<void> writeText(const ChunkedText& text, const std::filesystem::path& url);

}  // namespace clipvane
