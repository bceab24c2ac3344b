// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Help.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <utility>

#include "cli/Command.h"

namespace clipvane::cli {
namespace {

constexpr const char* rates =
    "Timecodes count frames, and an EDL seldom says how many make a second.\n";
constexpr const char* reading =
    "  --fps 25          reads at 25: 00:00:10:24 stays, and is frame 274\n";
constexpr const char* converting =
    "  --fps 25 --to 24  converts afterwards: 00:00:10:24 becomes 00:00:10:23, frame 263\n";
constexpr const char* guessing =
    "Without --fps a list that names no rate is read at 24, and that is said.\n";
constexpr const char* stamping =
    "  --fps 25          writes \"* FPS: 25\": 00:00:10:24 stays, and is frame 274\n";

constexpr const char* statuses =
    "Status: 0 all well; 1 a file failed, and the others are done; 2 wrong use;\n"
    "3 with --strict: check found something suspicious, diff a change.";

/// The library's, but for its head.
class Formatter : public CLI::Formatter {
  public:
    Formatter(std::string about, std::string usage)
        : about(std::move(about)), usage(std::move(usage)) {}

    std::string make_description(const CLI::App* /*app*/) const override { return about; }
    std::string make_usage(const CLI::App* /*app*/, std::string /*name*/) const override {
        return "\nUsage: " + usage + "\n";
    }
    /// The usage says how many names there are.
    std::string make_option_opts(const CLI::Option* option) const override {
        return option->get_positional() ? "" : CLI::Formatter::make_option_opts(option);
    }

  private:
    std::string about;
    std::string usage;
};

/// What the options of a command, or of all of them, do with rates.
std::string ratesOf(const CLI::App& app) {
    const bool isCommand = app.get_parent() != nullptr;
    if (isCommand && app.get_option("--fps")->get_required()) return std::string(rates) + stamping;
    const bool converts = !isCommand || app.get_option_no_throw("--to") != nullptr;
    return std::string(rates) + reading + (converts ? converting : "") + guessing;
}

void explain(CLI::App& app, const std::string& summary, const std::string& usage) {
    auto formatter = std::make_shared<Formatter>(summary + ".\n\n" + ratesOf(app), usage);
    formatter->label("REQUIRED", "");
    formatter->label("Positionals", "Arguments");
    app.formatter(formatter);
}

/// The one option without dashes: one name stands for several, "OLD NEW" for two.
std::string namesOf(const CLI::App& app) {
    for (const CLI::Option* option : app.get_options()) {
        if (!option->get_positional()) continue;
        const std::string name = option->get_name(true);
        return name.find(' ') == std::string::npos ? name + "..." : name;
    }
    return {};
}

}  // namespace

void explain(CLI::App& program) {
    explain(program,
            "Lists, converts, checks, stamps and compares edit timelines: EDL, XMEML and FCPXML",
            "clipvane-cli COMMAND [OPTIONS] TIMELINE...");
    program.footer(std::string(statuses) +
                   "\nclipvane-cli COMMAND --help tells more about each, with examples.");
}

void explain(CLI::App& app, const Command& command) {
    explain(app, "clipvane-cli " + command.name + ": " + command.summary,
            "clipvane-cli " + command.name + " [OPTIONS] " + namesOf(app));
    app.footer("Examples:\n" + command.examples + "\n" + statuses);
}

}  // namespace clipvane::cli
