// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/ChangeList.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include "base/Characters.h"
#include "base/Number.h"
#include "base/UTF8.h"
#include "commands/diff/Coverage.h"
#include "import/ClipNameComment.h"

namespace clipvane::diff {
namespace {

constexpr std::string_view reel = "OLDCUT";

bool hasFrames(Kind kind) {
    return kind == Kind::plain || kind == Kind::whole;
}

/// Black that both lists have can make a stretch longer than any event.
std::int64_t lengthOf(const ChangeStretch& stretch) {
    return subtractChecked(stretch.to, stretch.from);
}

/// What the events of a track cover in record time.
template <class Event>
Coverage recordCoverage(const std::vector<Event>& events, std::uint32_t track) {
    std::vector<AxisStretch> stretches;
    for (const Event& event : events) {
        if (event.track != track || !hasFrames(event.kind)) continue;
        stretches.push_back({0, event.times.recordIn, event.times.recordOut});
    }
    return Coverage(std::move(stretches));
}

/// What of the track is in OLD, event by event; in record order, as events do not overlap.
std::vector<ChangeStretch> pairedOn(const CutDiff& diff, std::uint32_t track) {
    std::vector<ChangeStretch> stretches;
    for (const PairedStretch& paired : diff.paired) {
        if (diff.newEvents[paired.newEvent].track != track) continue;
        if (diff.oldEvents[paired.oldEvent].track != track) continue;
        stretches.push_back({paired.newFrom, paired.newTo, paired.oldFrom});
    }
    return stretches;
}

/// Whether an EDL can hold the text in one of its columns.
bool isColumn(std::string_view text) {
    if (text.empty()) return false;
    for (; !text.empty(); text.remove_prefix(firstCodePoint(text).length)) {
        if (isWhiteSpace(firstCodePoint(text).value)) return false;
    }
    return true;
}

Error refusal(std::string reason) {
    return {"Clipvane", 0, std::move(reason)};
}

std::optional<Error> refusalOf(const Compared& compared, std::uint32_t track) {
    const CutDiff& diff = compared.diff;
    if (compared.newList.counting.dropsFrames) {
        return refusal("a change list of drop-frame lists cannot be written");
    }
    if (frameBase(compared.newList.counting.fps) > 100) {
        return refusal("an EDL holds no more than 100 frames a second");
    }
    const std::string& name = diff.tracks[track];
    if (diff.comparesTracks && !isColumn(name)) {
        return refusal("an EDL cannot hold the track \"" + name + '"');
    }
    std::optional<std::int64_t> end;
    for (const NewEvent& event : diff.newEvents) {
        if (event.track != track || !hasFrames(event.kind)) continue;
        if (end && event.times.recordIn < *end) {
            return refusal("events of NEW overlap on the track: row " +
                           std::to_string(event.row + 1));
        }
        end = event.times.recordOut;
    }
    return std::nullopt;
}

/// The name in one line that the reader does not take for a comment with a clip's name.
std::string quiet(std::string_view name) {
    std::string text;
    for (std::string_view rest = name; !rest.empty();) {
        const CodePoint c = firstCodePoint(rest);
        if (isNewline(c.value)) {
            text += ' ';
        } else {
            text += rest.substr(0, c.length);
        }
        rest.remove_prefix(c.length);
    }
    // The keyword has blanks in it.
    if (clipNameComment(text)) std::ranges::replace(text, ' ', '_');
    return text;
}

class Writer {
  public:
    Writer(const Compared& compared, std::uint32_t track) : compared(compared), track(track) {}

    Result<std::string> write(std::string_view rate) {
        text = "* FPS: " + std::string(rate) + "\nTITLE: Changes\nFCM: NON-DROP FRAME\n";
        const auto stretches = changeStretches(compared.diff, track);
        auto next = stretches.begin();
        for (const ChangeStretch& gap : lacking(stretches)) {
            for (; next != stretches.end() && next->from < gap.from; ++next) addEvent(*next);
            addComment(gap);
        }
        for (; next != stretches.end(); ++next) addEvent(*next);
        if (isOutside) {
            return tl::unexpected(
                refusal("an EDL holds timecodes from 00:00:00:00 to below 100 hours"));
        }
        return std::move(text);
    }

  private:
    /// The parts of events that are not in OLD. `oldFrom` is the event's row.
    std::vector<ChangeStretch> lacking(const std::vector<ChangeStretch>& stretches) const {
        std::vector<ChangeStretch> parts;
        auto next = stretches.begin();
        for (const NewEvent& event : compared.diff.newEvents) {
            if (event.track != track) continue;
            std::int64_t from = event.times.recordIn;
            while (next != stretches.end() && next->to <= from) ++next;
            auto inside = next;
            for (; inside != stretches.end() && inside->from < event.times.recordOut; ++inside) {
                if (from < inside->from) parts.push_back({from, inside->from, event.row});
                from = inside->to;
            }
            if (from < event.times.recordOut) {
                parts.push_back({from, event.times.recordOut, event.row});
            }
        }
        return parts;
    }

    std::string at(std::int64_t frames) {
        const double fps = compared.newList.counting.fps;
        const std::int64_t hundredHours = 100 * 3600 * frameBase(fps);
        if (frames < 0 || frames >= hundredHours) {
            isOutside = true;
            return "";
        }
        return timecode(frames, fps, false);
    }

    void addEvent(const ChangeStretch& stretch) {
        const CutDiff& diff = compared.diff;
        text += '\n';
        appendPadded(text, ++number, 3);
        text += "  ";
        text += reel;
        text += ' ';
        text += diff.comparesTracks ? diff.tracks[track] : "V";
        text += " C        " + at(stretch.oldFrom) + ' ' +
                at(addChecked(stretch.oldFrom, lengthOf(stretch))) + ' ' + at(stretch.from) + ' ' +
                at(stretch.to) + '\n';
    }

    void addComment(const ChangeStretch& part) {
        const auto& event = compared.newList.events[static_cast<std::size_t>(part.oldFrom)];
        text += "* NOT IN " + std::string(reel) + ": " + at(part.from) + ' ' + at(part.to) + ' ' +
                quiet(std::string(event.reelID) + ' ' + std::string(event.clipName)) + '\n';
    }

    const Compared& compared;
    std::uint32_t track;
    std::string text;
    std::int64_t number = 0;
    bool isOutside = false;
};

}  // namespace

std::vector<ChangeStretch> changeStretches(const CutDiff& diff, std::uint32_t track) {
    const Coverage oldCoverage = recordCoverage(diff.oldEvents, track);
    const Coverage newCoverage = recordCoverage(diff.newEvents, track);
    const auto isBlackInBoth = [&](const ChangeStretch& a, const ChangeStretch& b) {
        const std::int64_t oldEnd = addChecked(a.oldFrom, lengthOf(a));
        return newCoverage.within({0, a.to, b.from}) == 0 &&
               oldCoverage.within({0, oldEnd, b.oldFrom}) == 0;
    };
    std::vector<ChangeStretch> longest;
    for (const ChangeStretch& next : pairedOn(diff, track)) {
        const bool continues =
            !longest.empty() &&
            subtractChecked(longest.back().from, longest.back().oldFrom) ==
                subtractChecked(next.from, next.oldFrom) &&
            (next.from == longest.back().to || isBlackInBoth(longest.back(), next));
        if (continues) {
            longest.back().to = next.to;
        } else {
            longest.push_back(next);
        }
    }
    return longest;
}

Result<std::string> changeList(const Compared& compared, std::uint32_t track,
                               std::string_view rate) {
    if (auto error = refusalOf(compared, track)) return tl::unexpected(std::move(*error));
    return Writer(compared, track).write(rate);
}

}  // namespace clipvane::diff
