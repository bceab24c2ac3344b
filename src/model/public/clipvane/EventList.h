// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <clipvane/EventView.h>
#include <clipvane/Timecode.h>
#include <clipvane/TimelineEvent.h>
#include <clipvane/detail/BlockVector.h>
#include <clipvane/detail/EventRow.h>
#include <clipvane/detail/LazyIdentifiers.h>
#include <clipvane/detail/TextStore.h>

namespace clipvane {

class FileBytes;
struct FoundEvent;
class FoundTimecode;

/// An event as its list keeps it, where timecodes of the usual form are no texts: for whoever
/// counts the frames of many, or writes many. Its views are good as long as those of an
/// `EventView`.
struct KeptEvent {
    std::string_view eventNumber;
    std::string_view clipName;
    std::string_view reelID;
    std::string_view track;
    RowTimecodes timecodes;
    std::string_view format;
    std::string_view comments;
    bool highlighted = false;
    bool isFromEDL = false;
};

/// The events of a timeline, in order, as rows over the file's own text, which the list keeps. A
/// million events take 60 MB beside the text, and removing one moves four bytes for each behind it.
///
/// Copying a list copies the rows and shares the texts.
class EventList {
  public:
    /// Makes an event's source text of the lines that it stands in.
    using JoinLines = std::string (*)(std::string_view lines);

    EventList() = default;
    /// A list whose reader says how lines are joined.
    explicit EventList(JoinLines joinLines) : joinLines(joinLines) {}
    /// Copies of `events`.
    EventList(const std::vector<TimelineEvent>& events);
    EventList(const EventList& other);
    EventList(EventList&& other) noexcept = default;
    EventList& operator=(const EventList& other);
    EventList& operator=(EventList&& other) noexcept = default;
    ~EventList() = default;

    std::size_t size() const { return shown.size(); }
    bool empty() const { return shown.empty(); }
    /// The event at `row`, which must be less than `size()`.
    EventView operator[](std::size_t row) const { return {*this, shown[row]}; }

    /// The same event, without a text of each timecode.
    KeptEvent kept(std::size_t row) const;
    /// The text of a timecode: `room`, if it is packed.
    std::string_view timecodeText(RowTimecode timecode, std::span<char, twoDigitLength> room) const;
    /// The text of a timecode that is not packed.
    std::string_view unusualText(RowTimecode timecode) const {
        return timecode.isEmpty() ? std::string_view() : oddTimecodes[timecode.textNumber()];
    }

    class Iterator;
    Iterator begin() const;
    Iterator end() const;

    // Each of these does all or nothing; lack of memory is thrown. What events once held is freed
    // with the list.

    void push_back(const TimelineEvent& event);
    /// Puts `event`, with all its fields, at the place of the one at `row`.
    void replace(std::size_t row, const TimelineEvent& event);
    void setComments(std::size_t row, std::string comments);
    void erase(std::size_t row) noexcept;

    /// Converts the four timecodes of every event and tells how many of them were timecodes.
    std::size_t convertTimecodes(const TimecodeConversion& conversion);

    // For readers.

    // Keep a text that events stand in, and give a view that is good as long as the list lives.
    std::string_view keep(FileBytes bytes);
    std::string_view keep(std::string text) { return texts.keep(std::move(text)); }
    std::string_view keepCopy(std::string_view text) { return texts.copy(text); }

    /// Adds an event. Columns that lie within its lines stay there, others are copied.
    void append(const FoundEvent& event);

  private:
    friend struct EventView;

    /// What does not fit into a row.
    struct WideTexts {
        std::array<std::string_view, 4> columns;  ///< as those of a row
        std::string_view lines;
        std::string_view format;
    };

    std::uint32_t addRow(const FoundEvent& event);
    std::uint32_t addRow(const TimelineEvent& event);
    EventRow& addEmptyRow();
    void placeTexts(EventRow& row, std::uint32_t index, const FoundEvent& event);
    RowTimecode keepOdd(std::string_view timecode);
    KeptEvent keptAt(std::uint32_t index) const;
    void forget(std::uint32_t index) noexcept;

    TextStore texts;
    BlockVector<EventRow> rows;  // as they came; none moves, and a row's index is its identity
    BlockVector<RowTimecodes> timecodes;  // by the row's index
    std::vector<std::uint32_t> shown;     // the list: indexes of rows
    JoinLines joinLines = nullptr;

    // What few rows have, by the row's index.
    std::unordered_map<std::uint32_t, WideTexts> wideTexts;
    std::unordered_map<std::uint32_t, std::string> comments;
    BlockVector<std::string> oddTimecodes;  // by the number that a `RowTimecode` has
    mutable LazyIdentifiers identifiers;
};

inline KeptEvent EventList::keptAt(std::uint32_t index) const {
    const EventRow& row = rows[index];
    const WideTexts* const wide = row.isWide ? &wideTexts.at(index) : nullptr;
    const auto column = [&](std::size_t i) {
        return wide != nullptr ? wide->columns[i] : row.columns[i].of(row.texts);
    };
    return {.eventNumber = column(0),
            .clipName = column(1),
            .reelID = column(2),
            .track = column(3),
            .timecodes = timecodes[index],
            .format = wide != nullptr ? wide->format : formatText(row.format),
            .comments = row.hasComments ? std::string_view(comments.at(index)) : "",
            .highlighted = row.isHighlighted,
            .isFromEDL = row.format == EventRow::Format::edl};
}

inline KeptEvent EventList::kept(std::size_t row) const {
    return keptAt(shown[row]);
}

/// Goes through a list. It makes a new view each time.
class EventList::Iterator {
  public:
    EventView operator*() const { return (*list)[row]; }
    Iterator& operator++() {
        ++row;
        return *this;
    }
    bool operator==(const Iterator&) const = default;

  private:
    friend class EventList;
    Iterator(const EventList& list, std::size_t row) : list(&list), row(row) {}

    const EventList* list;
    std::size_t row;
};

// Inline, since a view asks four times.
inline std::string_view EventList::timecodeText(RowTimecode timecode,
                                                std::span<char, twoDigitLength> room) const {
    if (!timecode.isPacked()) return unusualText(timecode);
    timecode.packed().write(room);
    return {room.data(), room.size()};
}

inline EventList::Iterator EventList::begin() const {
    return {*this, 0};
}
inline EventList::Iterator EventList::end() const {
    return {*this, size()};
}

}  // namespace clipvane
