// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>
#include "cli/Input.h"
#include "cli/ReadingOptions.h"
#include "cli/Session.h"
#include "commands/diff/FrameCount.h"

namespace clipvane::cli {

/// The two timelines that `diff` compares, counted alike.
struct DiffInputs {
    std::unique_ptr<TimelineDocument> oldTimeline;
    std::unique_ptr<TimelineDocument> newTimeline;
    diff::Counting counting;
};

/// Reads OLD and NEW at --fps, or at the rates that they name, and converts them with --to. Says in
/// `session` what fails, for which there is nothing, and in notes what may surprise: an assumed
/// rate, XML that breaks off, a list without events.
std::unique_ptr<DiffInputs> readForDiff(const Input& oldInput, const Input& newInput,
                                        const ReadingOptions& options, Session& session);

}  // namespace clipvane::cli
