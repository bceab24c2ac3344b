// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/ReadAgain.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include <clipvane/detail/TwoDigitFields.h>
#include "base/Characters.h"
#include "base/Number.h"
#include "import/ClipNameComment.h"
#include "import/EDLReader.h"
#include "import/Scan.h"

namespace clipvane::cli {
namespace {

template <class Predicate>
bool holds(std::string_view text, Predicate isMember) {
    takeWhile(text, [&](char32_t c) { return !isMember(c); });
    return !text.empty();
}

/// Why `timecode`, written into an EDL, is not read again; empty when it is.
std::string_view timecodeFault(std::string_view timecode) {
    if (timecode.empty()) return "timecodes are missing";
    if (timecode.find(';') != std::string_view::npos) return "timecodes are drop-frame";
    return readTwoDigitFields(timecode) ? "" : "timecodes are not of the form HH:MM:SS:FF";
}

std::string_view nameFault(std::string_view name) {
    if (name.empty()) return "clips have no name";
    if (name.find(':') != std::string_view::npos) return "names hold colons";
    if (holds(name, isNewline)) return "names hold line ends";
    if (trimBlanksAndNewlines(name) != name) return "names begin or end with blanks";
    return "";
}

/// The likeliest reason for which an event is lost.
std::string_view faultOf(const EventView& event) {
    if (holds(event.reelID, isWhiteSpace)) return "reels hold blanks";
    if (holds(event.track, isWhiteSpace)) return "tracks hold blanks";
    for (const std::string_view timecode :
         {event.sourceIn, event.sourceOut, event.recordIn, event.recordOut}) {
        if (const auto fault = timecodeFault(timecode); !fault.empty()) return fault;
    }
    if (const auto fault = nameFault(event.clipName); !fault.empty()) return fault;
    if (clipNameComment(event.comments)) return "comments hold the words FROM CLIP NAME";
    // The comments of a lost event belong to the one before it.
    return "some get the name of the lost event behind them";
}

bool isSame(const EventView& written, const EventView& read) {
    const auto isKept = [](std::string_view text, std::string_view again, std::string_view empty) {
        return again == (text.empty() ? empty : text);
    };
    return isKept(written.reelID, read.reelID, "AX") && isKept(written.track, read.track, "V") &&
           written.clipName == read.clipName && written.sourceIn == read.sourceIn &&
           written.sourceOut == read.sourceOut && written.recordIn == read.recordIn &&
           written.recordOut == read.recordOut;
}

std::string joined(const std::map<std::string_view, std::size_t>& counts) {
    std::vector<std::pair<std::string_view, std::size_t>> reasons(counts.begin(), counts.end());
    std::ranges::stable_sort(reasons, std::ranges::greater(),
                             [](const auto& reason) { return reason.second; });
    std::string text;
    for (const auto& [reason, count] : reasons) {
        if (!text.empty()) text += ", ";
        text += reason;
    }
    return text;
}

}  // namespace

ReadAgain readAgain(const TimelineDocument& document, std::string_view edl) {
    // Numbers are positions, so that the events which are read can be told from those which are
    // not.
    std::vector<bool> isKept(document.events.size());
    const auto again = readEDL(std::string(edl));
    for (const auto& event : again) {
        const auto number = parseInteger(event.eventNumber);
        if (!number || *number < 1) continue;
        const auto row = static_cast<std::size_t>(*number - 1);
        if (row < isKept.size() && isSame(document.events[row], event)) isKept[row] = true;
    }
    ReadAgain result;
    result.events = document.events.size();
    std::map<std::string_view, std::size_t> faults;
    for (std::size_t row = 0; row < isKept.size(); ++row) {
        if (isKept[row]) {
            ++result.kept;
        } else {
            ++faults[faultOf(document.events[row])];
        }
    }
    result.reasons = joined(faults);
    return result;
}

}  // namespace clipvane::cli
