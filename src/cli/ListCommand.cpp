// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <string>

#include "cli/Commands.h"
#include "cli/Impossible.h"
#include "cli/ListFormat.h"
#include "cli/Output.h"
#include "cli/OutputOptions.h"
#include "cli/ReadingOptions.h"
#include "cli/TimelineReading.h"

namespace clipvane::cli {
namespace {

/// Prints the events of timelines.
class ListCommand : public Command {
  public:
    ListCommand()
        : Command("list", "print the events of timelines",
                  "  clipvane-cli list --fps 25 cut.edl\n"
                  "  clipvane-cli list --fps 25 -f csv -o report.csv cut.edl titles.edl\n"
                  "  clipvane-cli list -f jsonl cut.fcpxml | jq -r .clipName\n") {}

    void addOptions(Options& options) override {
        addFPSOption(options, reading);
        addToOption(options, reading);
        addFromOption(options, reading, {"edl", "xml", "jsonl"});
        options.addChoice("-f,--format", format, {"table", "csv", "tsv", "jsonl"},
                          "a table if it is not said");
        addOutputOption(options, output, "write to FILE; \"-\" is standard output");
        addForceOption(options, output);
        addNames(options, reading, "TIMELINE");
    }

    Status run(Session& session) override {
        const auto inputs = inputsNamed(reading.names);
        if (const auto misuse = misuseOf(inputs, reading)) return session.wrongUse(*misuse);
        if (isAnInput(output.file, inputs)) {
            session.fail(outputTitle(output.file), isInputError());
            return Status::failed;
        }
        auto destination = Output::open(output.file, output.existing());
        if (!destination) {
            session.fail(outputTitle(output.file), destination.error());
            return Status::failed;
        }
        const auto written = print(inputs, *destination, session);
        if (!written) session.fail(destination->name(), written.error());
        return session.statusOr(Status::ok);
    }

  private:
    /// Fails where the output does; what cannot be read has been said then.
    Result<void> print(const std::vector<Input>& inputs, Output& destination, Session& session) {
        const auto printer = listFormat(format, destination.columns());
        bool printed = false;
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            session.messages.progress(i, inputs.size(), inputs[i].name());
            const auto text = textOf(inputs[i], *printer, session);
            if (!text) {
                session.fail(inputs[i].title(), text.error());
                continue;
            }
            printed = true;
            session.messages.clearProgress();
            if (auto written = destination.write(*text); !written) return written;
        }
        session.messages.clearProgress();
        if (!printed) return {};  // nor does a file appear that says nothing
        if (auto written = destination.write(printer->end()); !written) return written;
        return destination.finish();
    }

    Result<std::string> textOf(const Input& input, ListFormat& printer, Session& session) const {
        const auto document = readAsTold(input, reading, session);
        if (!document) return tl::unexpected(document.error());
        return possibly(
            [&]() -> Result<std::string> { return printer.timeline(**document, input.name()); });
    }

    ReadingOptions reading;
    OutputOptions output;
    std::string format = "table";
};

}  // namespace

std::unique_ptr<Command> makeListCommand() {
    return std::make_unique<ListCommand>();
}

}  // namespace clipvane::cli
