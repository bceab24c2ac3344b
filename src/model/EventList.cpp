// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/EventList.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>

#include "base/File.h"
#include "model/FoundEvent.h"

namespace clipvane {
namespace {

bool liesIn(std::string_view whole, std::string_view part) {
    const std::less_equal<> notAfter;
    return part.empty() || (notAfter(whole.data(), part.data()) &&
                            notAfter(part.data() + part.size(), whole.data() + whole.size()));
}

/// `part` of a text that begins at `whole`, where it is not too far in.
Span spanOf(std::string_view part, const char* whole) {
    if (part.empty()) return {};
    return {static_cast<std::uint16_t>(part.data() - whole),
            static_cast<std::uint16_t>(part.size())};
}

EventRow::Format formatOf(std::string_view text) {
    if (text == formatText(EventRow::Format::edl)) return EventRow::Format::edl;
    if (text == formatText(EventRow::Format::xml)) return EventRow::Format::xml;
    return EventRow::Format::other;
}

}  // namespace

EventList::EventList(const std::vector<TimelineEvent>& events) {
    for (const TimelineEvent& event : events) push_back(event);
}

EventList::EventList(const EventList& other)
    : texts(other.texts),
      rows(other.rows),
      timecodes(other.timecodes),
      shown(other.shown),
      joinLines(other.joinLines),
      wideTexts(other.wideTexts),
      comments(other.comments),
      oddTimecodes(other.oddTimecodes) {
    // An event and its copy have the same identifier, whoever asks for it first.
    for (const std::uint32_t index : shown) other.identifiers.of(index);
    identifiers = LazyIdentifiers(other.identifiers);
}

EventList& EventList::operator=(const EventList& other) {
    return *this = EventList(other);
}

void EventList::push_back(const TimelineEvent& event) {
    shown.push_back(addRow(event));
}

std::string_view EventList::keep(FileBytes bytes) {
    return texts.keep(std::move(bytes));
}

void EventList::append(const FoundEvent& event) {
    shown.push_back(addRow(event));
}

void EventList::replace(std::size_t row, const TimelineEvent& event) {
    const std::uint32_t index = addRow(event);
    forget(std::exchange(shown[row], index));
}

void EventList::erase(std::size_t row) noexcept {
    shown.erase(shown.begin() + static_cast<std::ptrdiff_t>(row));
}

void EventList::setComments(std::size_t row, std::string text) {
    const std::uint32_t index = shown[row];
    const bool hasComments = !text.empty();
    if (hasComments) {
        comments.insert_or_assign(index, std::move(text));
    } else {
        comments.erase(index);
    }
    rows[index].hasComments = hasComments;
}

std::uint32_t EventList::addRow(const TimelineEvent& event) {
    const std::uint32_t index =
        addRow({.eventNumber = event.eventNumber,
                .clipName = event.clipName,
                .reelID = event.reelID,
                .track = event.track,
                .timecodes = {event.sourceIn, event.sourceOut, event.recordIn, event.recordOut},
                .format = event.format,
                .comments = event.comments,
                .highlighted = event.highlighted,
                .lines = texts.copy(event.rawText)});
    identifiers.set(index, event.id);
    return index;
}

std::uint32_t EventList::addRow(const FoundEvent& event) {
    if (rows.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("more events than a list can number");
    }
    const auto index = static_cast<std::uint32_t>(rows.size());
    EventRow& row = addEmptyRow();
    placeTexts(row, index, event);
    RowTimecodes& four = timecodes[index];
    for (std::size_t i = 0; i < four.size(); ++i) {
        const FoundTimecode& timecode = event.timecodes[i];
        four[i] = timecode.oddText().empty() ? timecode.usual() : keepOdd(timecode.oddText());
    }
    if (!event.comments.empty()) {
        comments.insert_or_assign(index, event.comments);
        row.hasComments = true;
    }
    row.isHighlighted = event.highlighted;
    row.isJoined = event.isJoined;
    return index;
}

EventRow& EventList::addEmptyRow() {
    // They are there already if memory was lacking for their row.
    if (timecodes.size() == rows.size()) timecodes.push_back({});
    return rows.push_back({});
}

void EventList::placeTexts(EventRow& row, std::uint32_t index, const FoundEvent& event) {
    const std::array columns{event.eventNumber, event.clipName, event.reelID, event.track};
    const auto isInLines = [&](std::string_view column) { return liesIn(event.lines, column); };
    std::size_t size = 0;
    for (const std::string_view column : columns) size += column.size();

    row.format = formatOf(event.format);
    row.isWide = row.format == EventRow::Format::other || event.lines.size() > Span::most ||
                 size > Span::most;
    if (row.isWide) {
        const auto kept = [&](std::string_view column) {
            return isInLines(column) ? column : texts.copy(column);
        };
        wideTexts.insert_or_assign(index, WideTexts{{kept(columns[0]), kept(columns[1]),
                                                     kept(columns[2]), kept(columns[3])},
                                                    event.lines,
                                                    texts.copy(event.format)});
        return;
    }
    row.lines = event.lines.data();
    row.linesSize = static_cast<std::uint16_t>(event.lines.size());
    if (std::ranges::all_of(columns, isInLines)) {
        row.texts = event.lines.data();
        for (std::size_t i = 0; i < columns.size(); ++i) {
            row.columns[i] = spanOf(columns[i], row.texts);
        }
    } else {
        char* to = texts.add(size).data();
        row.texts = to;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            row.columns[i] = spanOf({to, columns[i].size()}, row.texts);
            to = std::ranges::copy(columns[i], to).out;
        }
    }
}

RowTimecode EventList::keepOdd(std::string_view timecode) {
    if (oddTimecodes.size() > RowTimecode::mostTexts) {
        throw std::length_error("more timecodes of an unusual form than a list can number");
    }
    oddTimecodes.push_back(std::string(timecode));
    return RowTimecode::ofText(static_cast<std::uint32_t>(oddTimecodes.size() - 1));
}

void EventList::forget(std::uint32_t index) noexcept {
    wideTexts.erase(index);
    comments.erase(index);
    identifiers.forget(index);
}

std::size_t EventList::convertTimecodes(const TimecodeConversion& conversion) {
    const auto staysPacked = [&](RowTimecode timecode) {
        return timecode.isPacked() && conversion.fits(timecode.packed());
    };
    // In nearly every list all are so. Then the rows are gone through in a row, with those that are
    // no longer shown.
    if (timecodes.allOf(
            [&](const RowTimecodes& four) { return std::ranges::all_of(four, staysPacked); })) {
        timecodes.forEach([&](RowTimecodes& four) {
            for (RowTimecode& timecode : four) timecode = conversion.convert(timecode.packed());
        });
        return shown.size() * std::tuple_size_v<RowTimecodes>;
    }
    // First those that may need memory or stop the program, in the order of the list.
    std::size_t count = 0;
    BlockVector<std::string> odd;
    for (const std::uint32_t index : shown) {
        for (const RowTimecode timecode : timecodes[index]) {
            if (timecode.isEmpty() || staysPacked(timecode)) continue;
            std::array<char, twoDigitLength> room;
            std::string text(timecodeText(timecode, room));
            if (conversion.convert(text)) ++count;
            odd.push_back(std::move(text));
        }
    }
    // The rest cannot fail.
    std::uint32_t nextOdd = 0;
    for (const std::uint32_t index : shown) {
        for (RowTimecode& timecode : timecodes[index]) {
            if (timecode.isEmpty()) continue;
            if (staysPacked(timecode)) {
                timecode = conversion.convert(timecode.packed());
                ++count;
            } else {
                const auto packed = PackedTimecode::pack(odd[nextOdd]);
                timecode = packed ? RowTimecode(*packed) : RowTimecode::ofText(nextOdd);
                ++nextOdd;
            }
        }
    }
    oddTimecodes = std::move(odd);
    return count;
}

}  // namespace clipvane
