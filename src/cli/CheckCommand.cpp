// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <string>

#include "base/Characters.h"
#include "cli/Check.h"
#include "cli/CheckFormat.h"
#include "cli/Commands.h"
#include "cli/Counted.h"
#include "cli/Output.h"
#include "cli/OutputOptions.h"
#include "cli/ReadingOptions.h"
#include "cli/TimelineReading.h"
#include "cli/TimelineWalk.h"

namespace clipvane::cli {
namespace {

constexpr const char* standardOutput = "-";

bool isSuspicious(const Finding& finding) {
    return finding.weight == Finding::Weight::suspicious;
}

/// Whether a file that was found in a folder may well be no timeline at all.
bool mayBeAnything(const WalkedTimeline& walked) {
    std::string extension = walked.input.fileName().extension();
    std::ranges::transform(extension, extension.begin(), asciiLower);
    return !walked.isNamed && (extension == ".txt" || extension == ".xml");
}

/// Says what is read, what is not, and what looks wrong.
class CheckCommand : public Command {
  public:
    CheckCommand()
        : Command(
              "check", "tell what is read of timelines, and what looks wrong",
              "  clipvane-cli check --fps 25 cut.edl\n"
              "  clipvane-cli check --strict archive && echo nothing suspicious\n"
              "  clipvane-cli check -f jsonl archive | jq 'select(.weight == \"suspicious\")'\n") {}

    void addOptions(Options& options) override {
        addFPSOption(options, reading);
        addFromOption(options, reading, {"edl", "xml", "jsonl"});
        options.addChoice("-f,--format", format, {"text", "jsonl"}, "text if it is not said");
        options.addFlag("--strict", strict, "end with status 3 when anything is suspicious");
        addNames(options, reading, "TIMELINE|FOLDER");
    }

    Status run(Session& session) override {
        const auto inputs = inputsNamed(reading.names);
        if (const auto misuse = misuseOf(inputs, reading)) return session.wrongUse(*misuse);
        if (isAnInput(standardOutput, inputs)) {
            session.fail(outputTitle(standardOutput), isInputError());
            return Status::failed;
        }
        auto output = Output::open(standardOutput, AtomicFile::Existing::keep);
        const auto timelines = walkTimelines(inputs, Output::identityOf(standardOutput), session);
        const auto written = checkAll(timelines, *output, session);
        if (!written) session.fail(output->name(), written.error());
        return session.statusOr(strict && totals.suspicious > 0 ? Status::suspicious : Status::ok);
    }

  private:
    struct Totals {
        std::size_t timelines = 0;
        std::size_t events = 0;
        std::size_t suspicious = 0;
        std::size_t notes = 0;
    };

    /// Fails where the output does.
    Result<void> checkAll(const std::vector<WalkedTimeline>& timelines, Output& output,
                          Session& session) {
        for (std::size_t i = 0; i < timelines.size(); ++i) {
            const Input& input = timelines[i].input;
            session.messages.progress(i, timelines.size(), input.name());
            const auto checked = checkOne(timelines[i], session);
            if (!checked) {
                session.fail(input.title(), checked.error());
                continue;
            }
            session.messages.clearProgress();
            const auto& write = format == "jsonl" ? findingLines : findingsText;
            const TimelineDocument& document = *checked->timeline.document;
            const auto text = write(input.name(), document, checked->findings);
            if (auto written = output.write(text); !written) return written;
            count(*checked);
        }
        session.messages.clearProgress();
        if (format != "jsonl" && totals.timelines > 1) {
            if (auto written = output.write(sum()); !written) return written;
        }
        return output.finish();
    }

    Result<CheckedTimeline> checkOne(const WalkedTimeline& walked, Session& session) const {
        const auto content = readBytes(walked.input, reading);
        if (!content) return tl::unexpected(content.error());
        auto checked = check(*content, reading.fps);
        if (!checked) return checked;
        if (reading.fps) noteRate(checked->timeline, walked.input.title(), reading, session);
        if (checked->timeline.document->events.empty() && mayBeAnything(walked)) {
            checked->findings = {{"no-events", Finding::Weight::note, std::nullopt, std::nullopt,
                                  "it holds no events"}};
        }
        return checked;
    }

    void count(const CheckedTimeline& checked) {
        ++totals.timelines;
        totals.events += checked.timeline.document->events.size();
        const auto suspicious =
            static_cast<std::size_t>(std::ranges::count_if(checked.findings, isSuspicious));
        totals.suspicious += suspicious;
        totals.notes += checked.findings.size() - suspicious;
    }

    std::string sum() const {
        return counted(totals.timelines, "timeline") + ", " + counted(totals.events, "event") +
               ", " + std::to_string(totals.suspicious) + " suspicious, " +
               counted(totals.notes, "note") + "\n";
    }

    ReadingOptions reading;
    std::string format = "text";
    bool strict = false;
    Totals totals;
};

}  // namespace

std::unique_ptr<Command> makeCheckCommand() {
    return std::make_unique<CheckCommand>();
}

}  // namespace clipvane::cli
