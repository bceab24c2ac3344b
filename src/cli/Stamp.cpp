// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Stamp.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include <clipvane/TimelineEvent.h>
#include "base/Number.h"
#include "base/UTF8.h"
#include "cli/Encoding.h"
#include "cli/Reason.h"
#include "import/EDLReader.h"
#include "import/EventLine.h"
#include "import/FrameRateDetection.h"
#include "import/Lines.h"
#include "import/Scan.h"

namespace clipvane::cli {
namespace {

constexpr std::string_view stampHead = "* FPS: ";

/// A stretch of the text.
struct Place {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// What stands before the first event.
struct Head {
    std::size_t start = 0;       ///< behind a byte-order mark
    std::optional<Place> title;  ///< the line without its end
    std::optional<Place> stamp;  ///< the number of an earlier one
};

/// The number in a line such as `stamped` adds; a view into the line.
std::optional<std::string_view> stampedNumber(std::string_view line) {
    if (!line.starts_with(stampHead)) return std::nullopt;
    const std::string_view number = line.substr(stampHead.size());
    if (number.empty() || number.find_first_not_of("0123456789.") != std::string_view::npos) {
        return std::nullopt;
    }
    return number;
}

Head headOf(std::string_view text) {
    Head head;
    if (text.starts_with(byteOrderMark)) head.start = byteOrderMark.size();
    const auto placeOf = [&](std::string_view part) {
        const auto begin = static_cast<std::size_t>(part.data() - text.data());
        return Place{begin, begin + part.size()};
    };
    Lines lines(text.substr(head.start));
    while (const auto line = lines.next()) {
        if (matchEventLine(*line)) break;
        if (!head.title && line->starts_with("TITLE")) head.title = placeOf(*line);
        const auto number = stampedNumber(*line);
        if (number && !head.stamp) head.stamp = placeOf(*number);
    }
    return head;
}

/// The line end that `text` begins with; empty when it begins with none.
std::string_view lineEndAt(std::string_view text) {
    if (text.starts_with("\r\n")) return text.substr(0, 2);
    for (const std::string_view end : {"\n", "\r", "\v", "\f", "\u0085", "\u2028", "\u2029"}) {
        if (text.starts_with(end)) return text.substr(0, end.size());
    }
    return {};
}

std::string_view orLineFeed(std::string_view lineEnd) {
    return lineEnd.empty() ? "\n" : lineEnd;
}

std::string withLineAfter(std::string_view text, const Place& line, const std::string& stamp) {
    const std::string_view rest = text.substr(line.end);
    const std::string_view end = lineEndAt(rest);
    std::string result(text.substr(0, line.end));
    result += orLineFeed(end);
    result += stamp;
    // A title that ends the text without a line end leaves the stamp without one, too.
    result += rest;
    return result;
}

std::string withFirstLine(std::string_view text, std::size_t start, const std::string& stamp) {
    Lines lines(text.substr(start));
    const std::size_t firstLength = lines.next()->size();
    std::string result(text.substr(0, start));
    result += stamp;
    result += orLineFeed(lineEndAt(text.substr(start + firstLength)));
    result += text.substr(start);
    return result;
}

/// What the stamped text may look like, the most wanted first.
std::vector<std::string> candidates(std::string_view text, const std::string& rate, bool restamp) {
    const std::string stamp = std::string(stampHead) + rate;
    const Head head = headOf(text);
    std::vector<std::string> results;
    if (restamp && head.stamp) {
        std::string replaced(text.substr(0, head.stamp->begin));
        replaced += rate;
        replaced += text.substr(head.stamp->end);
        results.push_back(std::move(replaced));
    }
    if (head.title) results.push_back(withLineAfter(text, *head.title, stamp));
    results.push_back(withFirstLine(text, head.start, stamp));
    return results;
}

/// All fields but the identifier, which is new each time.
bool isSame(TimelineEvent a, const TimelineEvent& b) {
    a.id = b.id;
    return a == b;
}

/// Nothing when the events are others; otherwise whether there is one more before them.
std::optional<bool> comesFirst(const EventList& before, const EventList& after) {
    if (after.size() != before.size() && after.size() != before.size() + 1) return std::nullopt;
    const std::size_t added = after.size() - before.size();
    for (std::size_t row = 0; row < before.size(); ++row) {
        if (!isSame(before[row].record(), after[row + added].record())) return std::nullopt;
    }
    return added == 1;
}

}  // namespace

Result<StampedEDL> stamped(std::string_view bytes, double fps, bool restamp) {
    if (isUTF16(bytes)) return tl::unexpected(because("is UTF-16, and an EDL is read as UTF-8"));
    const std::string text = replaceInvalidUTF8(bytes);
    const auto named = detectFPS(text);
    if (named == fps) return StampedEDL{std::string(bytes), false};
    if (named && !restamp) {
        return tl::unexpected(because("names " + shortestDecimal(*named) +
                                      " fps already; --restamp makes it " + shortestDecimal(fps)));
    }
    const auto before = readEDL(text);
    for (std::string& candidate : candidates(bytes, shortestDecimal(fps), restamp)) {
        const std::string result = replaceInvalidUTF8(candidate);
        if (detectFPS(result) != fps) continue;
        const auto after = readEDL(result);
        const auto addsOne = comesFirst(before, after);
        const bool mayAddOne = bytes.starts_with(byteOrderMark);
        if (!addsOne || (*addsOne && !mayAddOne)) continue;
        return StampedEDL{std::move(candidate), *addsOne};
    }
    return tl::unexpected(because("cannot be stamped without changing what is read from it"));
}

}  // namespace clipvane::cli
