// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/EventFindings.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include <clipvane/FrameRate.h>
#include <clipvane/detail/TwoDigitFields.h>
#include "cli/Counted.h"
#include "cli/FrameCounts.h"

namespace clipvane::cli {
namespace {

using Weight = Finding::Weight;

/// The first timecode whose frames field the rate does not have, how many there are, and the
/// largest field of all.
struct FrameFields {
    std::size_t beyond = 0;
    std::size_t firstRow = 0;
    std::string first;
    std::int64_t largest = 0;

    void look(std::string_view timecode, std::int64_t field, std::int64_t base, std::size_t row) {
        largest = std::max(largest, field);
        if (field < base || beyond++ > 0) return;
        firstRow = row;
        first = timecode;
    }
};

/// The standard rates that have all fields up to `largest`.
std::string fittingRates(std::int64_t largest) {
    std::string rates;
    for (const double fps : standardFPSValues) {
        if (frameBase(fps) <= largest) continue;
        if (!rates.empty()) rates += ", ";
        rates += formatFPS(fps);
    }
    if (rates.empty()) return "none of the standard rates would fit all";
    return rates + " would fit all";
}

Finding beyondRate(const FrameFields& fields, double fps) {
    std::string text = fields.first + " is no timecode at " + formatFPS(fps) + " fps";
    const std::size_t others = fields.beyond - 1;
    if (others > 0) text += (others == 1 ? ", nor is " : ", nor are ") + counted(others, "other");
    return {"frames-beyond-rate", Weight::suspicious, std::nullopt, fields.firstRow,
            text + "; " + fittingRates(fields.largest)};
}

void lookAtRanges(const EventView& event, double fps, std::size_t row, Findings& found) {
    const FrameCounts counts = frameCounts(event, fps);
    const auto look = [&](const char* range, FrameCounts::Count duration, std::string_view in,
                          std::string_view out) {
        if (!duration || *duration >= 0) return;
        found.push_back({"reversed-range", Weight::suspicious, std::nullopt, row,
                         std::string(range) + " out " + std::string(out) + " comes before in " +
                             std::string(in)});
    };
    look("source", counts.sourceDuration, event.sourceIn, event.sourceOut);
    look("record", counts.recordDuration, event.recordIn, event.recordOut);
}

}  // namespace

Findings eventFindings(const TimelineDocument& document) {
    const std::int64_t base = frameBase(document.fps);
    Findings found;
    FrameFields frameFields;
    std::size_t row = 0;
    for (const EventView& event : document.events) {
        ++row;
        for (const std::string_view timecode :
             {event.sourceIn, event.sourceOut, event.recordIn, event.recordOut}) {
            const auto fields = readTwoDigitFields(timecode);
            if (!fields) continue;
            if ((*fields)[1] >= 60 || (*fields)[2] >= 60) {
                found.push_back({"impossible-field", Weight::suspicious, std::nullopt, row,
                                 std::string(timecode) + " has more than 59 minutes or seconds"});
            }
            frameFields.look(timecode, (*fields)[3], base, row);
        }
        lookAtRanges(event, document.fps, row, found);
    }
    if (frameFields.beyond > 0) found.push_back(beyondRate(frameFields, document.fps));
    return found;
}

}  // namespace clipvane::cli
