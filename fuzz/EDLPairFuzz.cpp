// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Two EDLs, the second behind a line "====", compared: what mirrors must mirror, a list is the same
// as itself, and the change list gives its stretches back.

#include <string_view>

#include <clipvane/Timecode.h>
#include <clipvane/TimelineParser.h>
#include <clipvane/diff/CutDiff.h>
#include "Target.h"
#include "base/UTF8.h"
#include "commands/diff/ChangeList.h"
#include "commands/diff/DiffLines.h"
#include "commands/diff/DiffTable.h"

namespace clipvane::fuzz {
namespace {

constexpr diff::Counting counting{25, false};

void requireReadsBack(const diff::Compared& compared, std::uint32_t track) {
    const auto text = diff::changeList(compared, track, "25");
    if (!text) return;
    const auto stretches = diff::changeStretches(compared.diff, track);
    const auto events = TimelineParser::parseEDL(*text);
    require(events.size() == stretches.size(), "a change list has an event a stretch");
    std::size_t i = 0;
    for (const auto& event : events) {
        const diff::ChangeStretch& stretch = stretches[i++];
        require(frames(event.recordIn, 25) == stretch.from &&
                    frames(event.recordOut, 25) == stretch.to &&
                    frames(event.sourceIn, 25) == stretch.oldFrom,
                "a change list reads back");
    }
}

void requireMirrors(const diff::Sums& forth, const diff::Sums& back) {
    require(forth.kept == forth.keptInOld && forth.kept == back.kept, "what is kept mirrors");
    require(forth.added == back.gone && forth.again == back.fewer, "what is new mirrors");
    require(forth.gone == back.added && forth.fewer == back.again, "what is lost mirrors");
    require(forth.longer == -back.longer, "the length mirrors");
}

void comparePair(const diff::CutList& oldList, const diff::CutList& newList) {
    const auto comparison = diff::compareCuts(oldList, newList);
    requireMirrors(comparison.sums, diff::compareCuts(newList, oldList).sums);
    require(diff::compareCuts(oldList, oldList).sums.areSame(), "a list is the same as itself");
    const diff::Compared compared{comparison, oldList, newList};
    static_cast<void>(diff::tableRows(compared, diff::Detail::usual));
    static_cast<void>(diff::csvLines(compared));
    static_cast<void>(diff::jsonLines(compared));
    for (std::uint32_t track = 0; track < comparison.tracks.size(); ++track) {
        requireReadsBack(compared, track);
    }
}

}  // namespace
}  // namespace clipvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    constexpr std::string_view between = "\n====\n";
    const std::string text = replaceInvalidUTF8(textOf(data, size));
    const std::size_t end = text.find(between);
    if (end == std::string::npos) return 0;
    const diff::Events oldEvents = TimelineParser::parseEDL(text.substr(0, end));
    const diff::Events newEvents = TimelineParser::parseEDL(text.substr(end + between.size()));
    comparePair({oldEvents, counting}, {newEvents, counting});
    return 0;
}
