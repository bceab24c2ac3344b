// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <string>

#include "cli/Commands.h"
#include "cli/Impossible.h"
#include "cli/Output.h"
#include "cli/OutputOptions.h"
#include "cli/OutputPlan.h"
#include "cli/ReadingOptions.h"
#include "cli/Reason.h"
#include "cli/Stamp.h"
#include "cli/TimelineReading.h"

namespace clipvane::cli {
namespace {

std::string ownName(const Input& input) {
    return input.fileName().native();
}

/// Writes into EDLs the rate that they were written at.
class StampCommand : public Command {
  public:
    StampCommand()
        : Command("stamp", "write into EDLs the rate that they count at",
                  "  clipvane-cli stamp --fps 25 -o stamped.edl cut.edl\n"
                  "  clipvane-cli stamp --fps 23.976 --in-place *.edl\n"
                  "  clipvane-cli stamp --fps 30 --restamp -d at30 wrong.edl\n") {}

    void addOptions(Options& options) override {
        addFPSOption(options, reading, "the rate that the EDL was written at");
        options.require("--fps");
        addFromOption(options, reading, {"edl"});
        addOutputOption(options, output, "write to FILE; \"-\" is standard output");
        addFolderOption(options, output, "write into FOLDER, which is made, by the EDLs' names");
        addInPlaceOption(options, output);
        addForceOption(options, output);
        options.addFlag("--restamp", restamp, "also an EDL that names another rate");
        addNames(options, reading, "EDL");
    }

    Status run(Session& session) override {
        const auto inputs = inputsNamed(reading.names);
        if (const auto misuse = misuseOf(inputs, reading)) return session.wrongUse(*misuse);
        if (const auto misuse = misuseOf(output, inputs)) return session.wrongUse(*misuse);
        const auto places = planOutputs(output, inputs, ownName, session);
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            if (!places[i]) continue;
            session.messages.progress(i, inputs.size(), inputs[i].name());
            stamp(inputs[i], *places[i], session);
        }
        session.messages.clearProgress();
        return session.statusOr(Status::ok);
    }

  private:
    void stamp(const Input& input, const std::string& place, Session& session) const {
        const auto content = readBytes(input, reading);
        if (!content) return session.fail(input.title(), content.error());
        if (content->format != TimelineFormat::edl) {
            return session.fail(input.title(), because("is XML, and only an EDL is stamped"));
        }
        const std::string_view bytes = content->bytes.view();
        const auto result = possibly([&] { return stamped(bytes, *reading.fps, restamp); });
        if (!result) return session.fail(input.title(), result.error());
        if (output.inPlace && result->text == bytes) return;
        session.messages.clearProgress();
        const auto existing = output.inPlace ? AtomicFile::Existing::replace : output.existing();
        const auto written = writeOutput(place, existing, result->text);
        if (!written) return session.fail(outputTitle(place), written.error());
        if (result->showsHiddenEvent) {
            session.note(outputTitle(place) +
                         ": its first event, which a byte-order mark hid, is read now");
        }
    }

    ReadingOptions reading;
    OutputOptions output;
    bool restamp = false;
};

}  // namespace

std::unique_ptr<Command> makeStampCommand() {
    return std::make_unique<StampCommand>();
}

}  // namespace clipvane::cli
