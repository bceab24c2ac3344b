// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>

#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>
#include "base/File.h"
#include "cli/Input.h"
#include "cli/ReadingOptions.h"
#include "cli/Session.h"
#include "cli/TimelineFormat.h"
#include "import/XMLReader.h"

namespace clipvane::cli {

/// A timeline as it was read.
struct ReadTimeline {
    std::unique_ptr<TimelineDocument> document;
    std::optional<double> namedRate;  ///< in the file, in frames per second, whether used or not
};

/// Reads the timeline in `bytes`, at `fps` frames a second if that is given, otherwise at the rate
/// that it names, or 24. Fails with a reason to follow the name: lines that are no events of JSON,
/// numbers that are impossible, no memory. A watcher is told what an XML document holds besides.
Result<ReadTimeline> readTimeline(const FileBytes& bytes, TimelineFormat format,
                                  std::optional<double> fps, XMLWatcher* watcher = nullptr);

/// The bytes of `input`, whose format must be told. Fails as `Input::read` does.
struct InputBytes {
    FileBytes bytes;
    TimelineFormat format;
};
Result<InputBytes> readBytes(const Input& input, const ReadingOptions& options);

/// Says in a note at which rate the timeline called `title` was read, where that may surprise.
void noteRate(const ReadTimeline& timeline, const std::string& title, const ReadingOptions& options,
              Session& session);

/// Reads `input` as the options tell: at --fps, converted with --to. Says where that may surprise.
Result<std::unique_ptr<TimelineDocument>> readAsTold(const Input& input,
                                                     const ReadingOptions& options,
                                                     Session& session);

}  // namespace clipvane::cli
