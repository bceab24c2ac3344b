// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Check.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <clipvane/FrameRate.h>
#include <clipvane/FrameRateSource.h>
#include "cli/EDLFindings.h"
#include "cli/EventFindings.h"
#include "cli/Impossible.h"
#include "cli/XMLFindings.h"

namespace clipvane::cli {
namespace {

void append(Findings& all, Findings more) {
    std::ranges::move(more, std::back_inserter(all));
}

/// What is to be said of the list as a whole.
Findings listFindings(const TimelineDocument& document) {
    Findings found;
    if (document.fpsSource == fpsSourceDefault) {
        found.push_back({"assumed-rate", Finding::Weight::note, std::nullopt, std::nullopt,
                         "it names no rate: read at " + formatFPS(document.fps) + " fps"});
    }
    if (document.events.empty()) {
        found.push_back({"no-events", Finding::Weight::suspicious, std::nullopt, std::nullopt,
                         "it holds no events"});
    }
    return found;
}

}  // namespace

Result<CheckedTimeline> check(const InputBytes& content, std::optional<double> fps) {
    XMLFindings watcher;
    auto timeline = readTimeline(content.bytes, content.format, fps, &watcher);
    if (!timeline) return tl::unexpected(std::move(timeline.error()));
    return possibly([&]() -> Result<CheckedTimeline> {
        const TimelineDocument& document = *timeline->document;
        Findings found = listFindings(document);
        const bool isEDL = content.format == TimelineFormat::edl;
        if (isEDL) append(found, edlFindings(content.bytes.view()));
        append(found, watcher.take());
        append(found, eventFindings(document));
        if (isEDL) append(found, trackFindings(document));
        return CheckedTimeline{std::move(*timeline), std::move(found)};
    });
}

}  // namespace clipvane::cli
