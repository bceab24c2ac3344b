// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <clipvane/diff/CutList.h>
#include <clipvane/diff/Words.h>

// The comparison of two cuts, to the frame: two lists in, changes out. docs/diff.md tells what the
// words mean. Rows count from 0, lengths are in frames, and a positive change is later or longer.
// A count that leaves 64 bits is fatal (clipvane/Fatal.h).
namespace clipvane::diff {

/// Where an event's times lie, in frames. All are 0 for an odd event.
struct Times {
    std::int64_t sourceIn = 0;
    std::int64_t sourceOut = 0;
    std::int64_t recordIn = 0;
    std::int64_t recordOut = 0;
};

/// An event of NEW.
struct NewEvent {
    std::uint32_t row = 0;
    std::uint32_t track = 0;  ///< index into CutDiff::tracks
    Words words;
    Kind kind = Kind::plain;
    Times times;
    std::optional<std::uint32_t> partner;  ///< index into the events of OLD

    std::int64_t head = 0;         ///< trimmed: this much longer at its head
    std::int64_t tail = 0;         ///< trimmed: this much longer at its tail
    std::int64_t inside = 0;       ///< trimmed: this much longer between joined parts
    std::int64_t sourceShift = 0;  ///< slipped: this much later in the source
    std::int64_t shift = 0;        ///< place in NEW minus place in OLD
    std::uint32_t piece = 1;       ///< split: which piece, from 1 ...
    std::uint32_t pieces = 1;      ///< ... of how many
    std::uint32_t parts = 1;       ///< joined: from how many

    std::int64_t newFrames = 0;        ///< OLD does not use these
    std::int64_t againFrames = 0;      ///< OLD uses these, though not as often
    std::int64_t elsewhereFrames = 0;  ///< paired with frames of OLD that are no partner's

    std::optional<std::uint32_t> inPlaceOf;  ///< a lost event: index into the events of OLD
};

/// An event of OLD.
struct OldEvent {
    std::uint32_t row = 0;
    std::uint32_t track = 0;
    Words words;  ///< gone, fewer, not compared; none of it has a partner
    Kind kind = Kind::plain;
    Times times;
    std::int64_t goneFrames = 0;
    std::int64_t fewerFrames = 0;
};

/// A longest stretch of an event of NEW that plays one of OLD, frame for frame.
struct PairedStretch {
    std::uint32_t newEvent = 0;  ///< index into the events of NEW
    std::uint32_t oldEvent = 0;  ///< index into the events of OLD
    std::int64_t newFrom = 0;    ///< in record frames, as the other two
    std::int64_t newTo = 0;
    std::int64_t oldFrom = 0;
};

/// One line of the report.
struct ReportLine {
    enum class Kind {
        event,  ///< an event of NEW
        ofOld,  ///< an event of OLD without a partner, where it would stand
        black,  ///< no event: the black before the next event of the chain is `longer`
    };
    Kind kind = Kind::event;
    std::uint32_t track = 0;
    std::uint32_t event = 0;  ///< index into the events of NEW, or of OLD
    std::uint32_t order = 0;  ///< among the events of NEW on the track, those that are the same too
    std::int64_t longer = 0;  ///< frames of black; negative for shorter
};

/// The sums of a comparison: frames of NEW = kept + new + again, those of OLD = keptInOld + gone +
/// fewer. `kept` and `keptInOld` differ only where tracks were chosen.
struct Sums {
    std::array<std::int64_t, wordCount> events{};  ///< by word
    std::int64_t newEvents = 0;
    std::int64_t oldEvents = 0;
    std::int64_t kept = 0;
    std::int64_t keptInOld = 0;
    std::int64_t added = 0;
    std::int64_t again = 0;
    std::int64_t gone = 0;
    std::int64_t fewer = 0;
    std::int64_t longer = 0;  ///< from first record in to last record out, NEW less OLD

    std::int64_t of(Word word) const { return events[static_cast<std::size_t>(word)]; }

    /// Whether nothing differs.
    bool areSame() const;
};

/// What changed from OLD to NEW. Black takes no part.
struct CutDiff {
    By by = By::reel;
    bool comparesTracks = true;       ///< false: no track text in common, all is one
    std::vector<std::string> tracks;  ///< by NEW, then OLD
    std::vector<NewEvent> newEvents;  ///< in record order: by record in, then row
    std::vector<OldEvent> oldEvents;  ///< likewise
    std::vector<PairedStretch> paired;
    std::vector<ReportLine> report;  ///< by track; what is the same has no line
    Sums sums;
};

/// Compares two lists. Without `by`: by reel if both are EDLs, else by name. With `onlyTracks` the
/// report and the sums are those of these tracks; the pairing is not affected.
CutDiff compareCuts(const CutList& oldList, const CutList& newList,
                    std::optional<By> by = std::nullopt,
                    const std::vector<std::string>& onlyTracks = {});

}  // namespace clipvane::diff
