// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ReadBack.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include <clipvane/CSVReport.h>
#include <clipvane/EditedEDL.h>
#include <clipvane/TimelineEventJSON.h>
#include <clipvane/TimelineParser.h>
#include "Events.h"
#include "Target.h"
#include "base/Characters.h"
#include "base/UTF8.h"

namespace clipvane::fuzz {
namespace {

using Row = std::vector<std::string>;

/// The rows of a CSV text as any reader of such texts sees them.
std::vector<Row> rowsOf(const std::string& text) {
    std::vector<Row> rows;
    Row row(1);
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"' && isQuoted && i + 1 < text.size() && text[i + 1] == '"') {
            row.back() += text[++i];
        } else if (c == '"') {
            isQuoted = !isQuoted;
        } else if (c == ',' && !isQuoted) {
            row.emplace_back();
        } else if (c == '\n' && !isQuoted) {
            rows.push_back(row);
            row.assign(1, {});
        } else {
            row.back() += c;
        }
    }
    require(!isQuoted && row == Row(1), "a CSV report ends with a line feed outside quotes");
    return rows;
}

Row expectedRow(const TimelineDocument& document, const TimelineEvent& event) {
    Row row{event.eventNumber,
            event.clipName,
            event.reelID,
            test::judgedLabel(document.fps),
            document.fpsSource,
            event.sourceIn,
            event.sourceOut,
            test::judgedDuration(event.sourceIn, event.sourceOut, document.fps),
            event.recordIn,
            event.recordOut,
            test::judgedDuration(event.recordIn, event.recordOut, document.fps),
            event.track,
            event.format,
            event.highlighted ? "Yes" : "No",
            event.comments};
    for (std::string& field : row) std::ranges::replace(field, '\n', ' ');
    return row;
}

template <class Predicate>
bool all(std::string_view text, Predicate holds) {
    while (!text.empty()) {
        const CodePoint next = firstCodePoint(text);
        if (!holds(next.value)) return false;
        text.remove_prefix(next.length);
    }
    return true;
}

bool isTimecode(std::string_view text) {
    constexpr std::string_view form = "dd:dd:dd:dd";
    std::size_t position = 0;
    const bool fits = all(text, [&](char32_t c) {
        if (position == form.size()) return false;
        return form[position++] == ':' ? c == U':' : isDecimalDigit(c);
    });
    return fits && position == form.size();
}

bool isColumn(std::string_view text) {
    return all(text, [](char32_t c) { return !isWhiteSpace(c); });
}

}  // namespace

void requireCSVReadsBack(const TimelineDocument& document) {
    const auto text = unlessFatal([&] { return csvText(document); });
    const auto expected = unlessFatal([&] {
        std::vector<Row> rows;
        for (const EventView& event : document.events) {
            rows.push_back(expectedRow(document, event.record()));
        }
        return rows;
    });
    require(text.has_value() == expected.has_value(), "report and arithmetic stop, or neither");
    if (!text) return;
    std::vector<Row> rows = rowsOf(*text);
    require(rows.at(0).size() == 15, "the report has fifteen columns");
    rows.erase(rows.begin());
    const bool isAsExpected =
        document.events.empty() ? rows == std::vector(1, Row(1)) : rows == *expected;
    require(isAsExpected, "a CSV reader finds every field");
}

void requireEDLReadsBack(const TimelineDocument& document) {
    const std::string text = edlText(document);
    TimelineDocument again;
    again.events = TimelineParser::parseEDL(text);
    require(again.events.size() == document.events.size(), "no event is lost and none is new");
    for (std::size_t i = 0; i < again.events.size(); ++i) {
        const TimelineEvent written = document.events[i].record();
        const TimelineEvent read = again.events[i].record();
        std::array<char, 32> number{};
        std::snprintf(number.data(), number.size(), "%03zu", i + 1);
        require(read.eventNumber == number.data(), "events are numbered from one");
        TimelineEvent expected = written;
        expected.eventNumber = read.eventNumber;
        if (expected.reelID.empty()) expected.reelID = "AX";
        if (expected.track.empty()) expected.track = "V";
        // An EDL has no place for these.
        expected.rawText = read.rawText;
        expected.format = "EDL";
        expected.highlighted = false;
        expected.comments.clear();
        require(sameFields(read, expected), "an exported event is read back");
        again.events.setComments(i, written.comments);
    }
    require(edlText(again) == text, "what was read back is exported as before");
}

bool fitsEDL(const TimelineEvent& event) {
    const auto isPlain = [](char32_t c) { return !isNewline(c) && c != U':'; };
    const bool commentFits =
        all(event.comments, isPlain) && event.comments.find_first_of("Ff\xEF") == std::string::npos;
    return isColumn(event.reelID) && isColumn(event.track) && isTimecode(event.sourceIn) &&
           isTimecode(event.sourceOut) && isTimecode(event.recordIn) &&
           isTimecode(event.recordOut) && !event.clipName.empty() && all(event.clipName, isPlain) &&
           trimBlanksAndNewlines(event.clipName) == event.clipName && commentFits;
}

void requireJSONReadsBack(const TimelineDocument& document) {
    for (const EventView& event : document.events) {
        const TimelineEvent record = event.record();
        const auto again = decodeJSON(encodeJSON(record));
        require(again && again->id == record.id && sameFields(*again, record),
                "the keyed form gives the event back");
    }
}

}  // namespace clipvane::fuzz
