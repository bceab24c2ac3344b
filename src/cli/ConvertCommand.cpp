// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <string>

#include <clipvane/EditedEDL.h>
#include "cli/Commands.h"
#include "cli/Counted.h"
#include "cli/Impossible.h"
#include "cli/Output.h"
#include "cli/OutputOptions.h"
#include "cli/OutputPlan.h"
#include "cli/ReadAgain.h"
#include "cli/ReadingOptions.h"
#include "cli/TimelineReading.h"

namespace clipvane::cli {
namespace {

std::string edlName(const Input& input) {
    return input.stem().native() + ".edl";
}

/// Writes timelines as edited EDLs.
class ConvertCommand : public Command {
  public:
    ConvertCommand()
        : Command("convert", "write timelines as EDLs of cuts",
                  "  clipvane-cli convert -o cut.edl cut.fcpxml\n"
                  "  clipvane-cli convert --fps 25 --to 24 -d at24 *.edl\n"
                  "  clipvane-cli list -f jsonl cut.edl | jq -c 'select(.track == \"V\")' |\n"
                  "      clipvane-cli convert --from jsonl -o video.edl -\n") {}

    void addOptions(Options& options) override {
        addFPSOption(options, reading);
        addToOption(options, reading);
        addFromOption(options, reading, {"edl", "xml", "jsonl"});
        addOutputOption(options, output, "write to FILE; \"-\" is standard output");
        addFolderOption(options, output,
                        "write into FOLDER, which is made, by the timelines' names");
        addForceOption(options, output);
        addNames(options, reading, "TIMELINE");
    }

    Status run(Session& session) override {
        const auto inputs = inputsNamed(reading.names);
        if (const auto misuse = misuseOf(inputs, reading)) return session.wrongUse(*misuse);
        if (const auto misuse = misuseOf(output, inputs)) return session.wrongUse(*misuse);
        const auto places = planOutputs(output, inputs, edlName, session);
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            if (!places[i]) continue;
            session.messages.progress(i, inputs.size(), inputs[i].name());
            convert(inputs[i], *places[i], session);
        }
        session.messages.clearProgress();
        return session.statusOr(Status::ok);
    }

  private:
    void convert(const Input& input, const std::string& place, Session& session) const {
        const auto document = readAsTold(input, reading, session);
        if (!document) return session.fail(input.title(), document.error());
        const auto text = possibly([&]() -> Result<std::string> { return edlText(**document); });
        if (!text) return session.fail(input.title(), text.error());
        session.messages.clearProgress();
        const auto written = writeOutput(place, output.existing(), *text);
        if (!written) return session.fail(outputTitle(place), written.error());
        const auto again =
            possibly([&]() -> Result<ReadAgain> { return readAgain(**document, *text); });
        if (!again) return session.fail(outputTitle(place), again.error());
        tell(*again, outputTitle(place), session);
    }

    static void tell(const ReadAgain& again, const std::string& title, Session& session) {
        if (again.kept == again.events) return;
        const std::string sentence = title + ": " + std::to_string(again.kept) + " of " +
                                     counted(again.events, "event") +
                                     " can be read again: " + again.reasons;
        if (again.kept == 0) {
            session.fail(sentence);
        } else {
            session.note(sentence);
        }
    }

    ReadingOptions reading;
    OutputOptions output;
};

}  // namespace

std::unique_ptr<Command> makeConvertCommand() {
    return std::make_unique<ConvertCommand>();
}

}  // namespace clipvane::cli
