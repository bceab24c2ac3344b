// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <unistd.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include <clipvane/diff/CutDiff.h>
#include "base/Number.h"
#include "cli/Commands.h"
#include "cli/DiffReading.h"
#include "cli/Impossible.h"
#include "cli/Output.h"
#include "cli/OutputOptions.h"
#include "cli/ReadingOptions.h"
#include "cli/Reason.h"
#include "cli/Table.h"
#include "cli/Terminal.h"
#include "commands/diff/ChangeList.h"
#include "commands/diff/CutPair.h"
#include "commands/diff/DiffLines.h"
#include "commands/diff/DiffTable.h"
#include "commands/diff/ListedEvent.h"
#include "commands/diff/TextNumbers.h"

namespace clipvane::cli {
namespace {

/// Wider than any cell: the column never becomes narrower.
constexpr std::size_t wholeWidth = std::numeric_limits<std::size_t>::max();

diff::By byCalled(const std::string& name) {
    if (name == "reel") return diff::By::reel;
    return name == "name" ? diff::By::name : diff::By::reelAndName;
}

/// Tells what changed between two cuts.
class DiffCommand : public Command {
  public:
    DiffCommand()
        : Command("diff", "tell what changed between two cuts",
                  "  clipvane-cli diff --fps 25 v3.edl v4.edl\n"
                  "  clipvane-cli diff --fps 25 --track V -f edl -o changes.edl v3.edl v4.edl\n"
                  "  clipvane-cli diff -f jsonl v3.fcpxml v4.fcpxml | jq -r "
                  "'select(.sums).sums.longer'\n") {}

    void addOptions(Options& options) override {
        addFPSOption(options, reading);
        addToOption(options, reading);
        addFromOption(options, reading, {"edl", "xml", "jsonl"});
        options.addChoice("--by", by, {"reel", "name", "reel+name"}, "what tells sources apart");
        options.addValues("--track", "TRACK", tracks, "report this track only; can be repeated");
        options.addChoice("-f,--format", format, {"table", "csv", "jsonl", "edl"},
                          "a table if it is not said");
        options.addFlag("--verbose", verbose, "list each event, what is not compared too");
        options.addFlag("--strict", strict, "status 3 if anything is not the same");
        addOutputOption(options, output, "write to FILE; \"-\" is standard output");
        addForceOption(options, output);
        addNames(options, reading, "OLD NEW");
    }

    Status run(Session& session) override {
        const auto inputs = inputsNamed(reading.names);
        if (inputs.size() != 2) return session.wrongUse("diff takes two timelines, OLD and NEW");
        if (const auto misuse = misuseOf(inputs, reading)) return session.wrongUse(*misuse);
        if (format == "edl" && tracks.size() > 1) {
            return session.wrongUse("a change list is of one track: say --track once");
        }
        if (verbose && format != "table") {
            return session.wrongUse(
                "--verbose is for the table; the other formats list each event");
        }
        if (isAnInput(output.file, inputs)) {
            session.fail(outputTitle(output.file),
                         because("is one of the timelines, and is not written over"));
            return Status::failed;
        }
        const auto timelines = readForDiff(inputs[0], inputs[1], reading, session);
        if (!timelines) return Status::failed;
        bool isSame = false;
        const auto text = possibly([&]() -> Result<std::string> {
            try {
                return textOf(*timelines, session, isSame);
            } catch (const ImpossibleNumber& impossible) {
                return tl::unexpected(because("they cannot be compared: " + impossible.reason));
            }
        });
        if (!text) {
            session.fail(inputs[0].title() + " and " + inputs[1].title() + ": " +
                         text.error().description);
            return Status::failed;
        }
        const auto written = writeOutput(output.file, output.existing(), *text);
        if (!written) session.fail(outputTitle(output.file), written.error());
        return session.statusOr(strict && !isSame ? Status::suspicious : Status::ok);
    }

  private:
    Result<std::string> textOf(const DiffInputs& timelines, Session& session, bool& isSame) const {
        const diff::CutList oldList{timelines.oldTimeline->events, timelines.counting};
        const diff::CutList newList{timelines.newTimeline->events, timelines.counting};
        const auto chosenBy = by.empty() ? std::nullopt : std::optional(byCalled(by));
        const auto comparison = diff::compareCuts(oldList, newList, chosenBy, tracks);
        for (const std::string& track : tracks) {
            if (diff::findTrack(comparison.tracks, track)) continue;
            if (!comparison.comparesTracks) {
                return tl::unexpected(
                    because("the lists have no track in common, so that none can be chosen"));
            }
            return tl::unexpected(because("neither list has a track \"" + track + "\""));
        }
        isSame = comparison.sums.areSame();
        const diff::Compared compared{comparison, oldList, newList};
        note(compared, session);
        if (format == "csv") return diff::csvLines(compared);
        if (format == "jsonl") return diff::jsonLines(compared);
        if (format == "edl") return changeList(compared);
        return table(compared);
    }

    Result<std::string> changeList(const diff::Compared& compared) const {
        const auto& all = compared.diff.tracks;
        if (tracks.empty() && all.size() > 1) {
            return tl::unexpected(
                because("a change list is of one track, and the lists have several: say --track"));
        }
        const std::uint32_t track =
            tracks.empty() ? 0 : diff::findTrack(all, tracks.front()).value_or(0);
        return diff::changeList(compared, track, shortestDecimal(compared.newList.counting.fps));
    }

    /// What changed, by how much and where is shown whole, whatever the terminal's width; what it
    /// is of becomes narrower.
    std::string table(const diff::Compared& compared) const {
        constexpr std::size_t narrowed = 6;  // "Source", "Reel" and "Name", behind the rest
        const auto detail = verbose ? diff::Detail::everyEvent : diff::Detail::usual;
        const auto changes = diff::tableRows(compared, detail);
        std::vector<Table::Column> columns;
        columns.reserve(diff::tableColumns.size());
        for (const auto title : diff::tableColumns) {
            const bool mayNarrow = columns.size() >= narrowed;
            columns.push_back({std::string(title), mayNarrow ? 4 : wholeWidth});
        }
        Table rows(columns);
        for (const auto& row : changes) rows.addRow({row.begin(), row.end()});
        const bool isOnTerminal = output.file.empty() || output.file == "-";
        const auto width = isOnTerminal ? terminalColumns(STDOUT_FILENO) : std::nullopt;
        std::string text = changes.empty() ? std::string() : rows.text(width) + '\n';
        return text + diff::sumsPhrase(compared.diff.sums) + '\n';
    }

    /// What the reader of the report should know about the comparison itself.
    void note(const diff::Compared& compared, Session& session) const {
        const auto& comparison = compared.diff;
        const bool hasBoth = !comparison.newEvents.empty() && !comparison.oldEvents.empty();
        if (hasBoth && !comparison.comparesTracks) {
            session.note("the lists have no track in common: all is compared as one track");
        }
        if (hasBoth && by.empty() && comparison.by == diff::By::name) {
            session.note("compared by name, since the lists are not both EDLs");
        }
        if (hasBoth && isFromEDL(compared.oldList) != isFromEDL(compared.newList)) {
            session.note(
                "an EDL counts a source by its timecode, many an XML counts the source "
                "from the file's start: little may be found");
        }
        if (comparison.by == diff::By::reel && hasNamesake(compared)) {
            session.note(
                "a new shot stands in place of a lost one of the same name: --by name "
                "may find it");
        }
    }

    static bool hasNamesake(const diff::Compared& compared) {
        return std::ranges::any_of(compared.diff.newEvents, [&](const diff::NewEvent& event) {
            if (!event.inPlaceOf) return false;
            const std::uint32_t oldRow = compared.diff.oldEvents[*event.inPlaceOf].row;
            const auto& before = compared.oldList.events[oldRow];
            const auto& now = compared.newList.events[event.row];
            const auto name = diff::givenName(now.clipName, now.eventNumber);
            return !name.empty() && diff::areEquivalent(name, before.clipName);
        });
    }

    ReadingOptions reading;
    OutputOptions output;
    std::string by;
    std::vector<std::string> tracks;
    std::string format = "table";
    bool verbose = false;
    bool strict = false;
};

}  // namespace

std::unique_ptr<Command> makeDiffCommand() {
    return std::make_unique<DiffCommand>();
}

}  // namespace clipvane::cli
