// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Cuts.h"

#include <utility>

#include <clipvane/Timecode.h>
#include "commands/diff/DiffTable.h"

namespace clipvane::test {
namespace {

using diff::Word;
using diff::Words;

std::string numberText(std::size_t number) {
    std::string text = std::to_string(number);
    if (text.size() < 3) text.insert(0, 3 - text.size(), '0');
    return text;
}

std::string text(std::int64_t number) {
    return std::to_string(number);
}

std::string wordsOf(const diff::NewEvent& event) {
    std::string words;
    const auto has = [&](Word word) { return event.words.has(word); };
    if (has(Word::split)) words += " split " + text(event.piece) + '/' + text(event.pieces);
    if (has(Word::joined)) words += " joined " + text(event.parts);
    if (has(Word::retimed)) words += " retimed";
    if (has(Word::slipped)) words += " slipped " + text(event.sourceShift);
    if (has(Word::trimmed)) {
        words += " trimmed " + text(event.head) + ' ' + text(event.tail) + ' ' + text(event.inside);
    }
    if (has(Word::otherTrack)) words += " track " + text(event.shift);
    if (has(Word::moved)) words += " moved " + text(event.shift);
    if (has(Word::shifted)) words += " shifted " + text(event.shift);
    if (has(Word::renamed)) words += " renamed";
    if (has(Word::same)) words += " same";
    if (has(Word::partly)) words += " partly";
    return words;
}

std::string describe(const diff::NewEvent& event, const diff::CutDiff& diff) {
    if (event.words.has(Word::notCompared)) return "not compared";
    const std::string frames = " (" + text(event.newFrames) + ' ' + text(event.againFrames) + ' ' +
                               text(event.elsewhereFrames) + ')';
    if (event.partner)
        return "of " + text(diff.oldEvents[*event.partner].row) + wordsOf(event) + frames;
    std::string words = event.words == Words{Word::added}   ? "new"
                        : event.words == Words{Word::again} ? "again"
                                                            : "?";
    words += frames;
    if (event.inPlaceOf) words += " in place of " + text(diff.oldEvents[*event.inPlaceOf].row);
    return words;
}

std::string describe(const diff::OldEvent& event) {
    std::string words;
    if (event.words.has(Word::gone)) words += "gone";
    if (event.words.has(Word::fewer)) words += "fewer";
    if (event.words.has(Word::notCompared)) words += "not compared";
    return words + " (" + text(event.goneFrames) + ' ' + text(event.fewerFrames) + ')';
}

/// The first four columns of the report, as the judge gives them.
std::string lineOf(const diff::TableRow& row) {
    const auto& [track, oldRow, newRow, change, oldRecord, newRecord, source, reel, name] = row;
    const bool isGroup = change.find(" events ") != std::string::npos;
    const bool isBlack = oldRow.empty() && newRow.empty();
    return track + '|' + oldRow + '|' + newRow + '|' + (isGroup || isBlack ? change : "");
}

std::string spelled(std::string text, std::size_t row) {
    constexpr std::string_view composed = "\u00E9";
    const std::size_t at = text.find(composed);
    if (row % 2 == 1 && at != std::string::npos) text.replace(at, composed.size(), "e\u0301");
    return text;
}

}  // namespace

Row cut(std::string reel, std::int64_t sourceIn, std::int64_t sourceOut, std::int64_t recordIn,
        std::string track, std::string name) {
    return {
        std::move(reel),  sourceIn,       sourceOut, recordIn, recordIn + (sourceOut - sourceIn),
        std::move(track), std::move(name)};
}

std::vector<JudgedEvent> judgedOf(const std::vector<Row>& rows) {
    std::vector<JudgedEvent> judged;
    for (const Row& row : rows) {
        JudgedEvent event;
        event.number = numberText(judged.size() + 1);
        event.name = row.name.empty() ? "Clip " + event.number : row.name;
        event.reel = row.reel;
        event.track = row.track;
        const std::array times{row.sourceIn, row.sourceOut, row.recordIn, row.recordOut};
        for (std::size_t i = 0; i < times.size(); ++i) {
            event.times[i] = times[i];
            event.texts[i] = timecode(times[i], at25.fps, false);
        }
        judged.push_back(event);
    }
    return judged;
}

diff::Events eventsOf(const std::vector<JudgedEvent>& judged) {
    std::vector<TimelineEvent> events;
    for (const JudgedEvent& from : judged) {
        TimelineEvent event;
        event.eventNumber = from.number;
        event.clipName = spelled(from.name, events.size());
        event.reelID = spelled(from.reel, events.size());
        event.track = from.track;
        event.sourceIn = from.texts[0];
        event.sourceOut = from.texts[1];
        event.recordIn = from.texts[2];
        event.recordOut = from.texts[3];
        event.format = "EDL";
        events.push_back(event);
    }
    return events;
}

diff::Events eventsOf(const std::vector<Row>& rows) {
    return eventsOf(judgedOf(rows));
}

diff::CutDiff compare(const std::vector<Row>& oldRows, const std::vector<Row>& newRows) {
    const auto oldEvents = eventsOf(oldRows);
    const auto newEvents = eventsOf(newRows);
    return diff::compareCuts({oldEvents, at25}, {newEvents, at25});
}

CutVerdict verdictOf(const diff::Compared& compared) {
    const diff::CutDiff& diff = compared.diff;
    CutVerdict verdict;
    verdict.oldRows.resize(compared.oldList.events.size());
    verdict.newRows.resize(compared.newList.events.size());
    for (const auto& event : diff.newEvents) verdict.newRows[event.row] = describe(event, diff);
    for (const auto& event : diff.oldEvents) verdict.oldRows[event.row] = describe(event);
    for (const auto& row : diff::tableRows(compared, diff::Detail::usual)) {
        verdict.lines.push_back(lineOf(row));
    }
    const diff::Sums& s = diff.sums;
    verdict.sums = "kept " + text(s.kept) + ' ' + text(s.keptInOld) + " new " + text(s.added) +
                   " again " + text(s.again) + " gone " + text(s.gone) + " fewer " + text(s.fewer) +
                   " longer " + text(s.longer);
    return verdict;
}

std::vector<std::string> reportOf(const diff::CutDiff& diff, const diff::Events& oldEvents,
                                  const diff::Events& newEvents) {
    std::vector<std::string> lines;
    for (const auto& line : diff.report) {
        if (line.kind == diff::ReportLine::Kind::black) {
            lines.push_back("black " + text(line.longer));
        } else if (line.kind == diff::ReportLine::Kind::ofOld) {
            const auto& event = diff.oldEvents[line.event];
            lines.push_back(std::string(oldEvents[event.row].reelID) + ' ' + describe(event));
        } else {
            const auto& event = diff.newEvents[line.event];
            lines.push_back(std::string(newEvents[event.row].reelID) + ' ' + describe(event, diff));
        }
    }
    return lines;
}

}  // namespace clipvane::test
