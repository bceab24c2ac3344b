// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <clipvane/EventList.h>
#include <clipvane/FrameRateSource.h>
#include <clipvane/TimelineEvent.h>

namespace clipvane {

/// The open timeline. There is one for the program's life; opening a file refills it in place, so
/// it cannot be copied.
struct TimelineDocument {
    TimelineDocument() = default;
    TimelineDocument(const TimelineDocument&) = delete;
    TimelineDocument& operator=(const TimelineDocument&) = delete;

    std::optional<std::filesystem::path> sourceURL;  ///< the file last opened
    EventList events;                                ///< those that remain for export
    std::vector<TimelineEvent> removedEvents;        ///< in the order of their removal
    double fps = defaultFPS;                         ///< frames per second of `events`
    std::string fpsSource{fpsSourceDefault};         ///< where `fps` came from
};

}  // namespace clipvane
