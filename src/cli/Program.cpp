// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Program.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <new>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Output.h"
#include "cli/Session.h"

namespace clipvane::cli {
namespace {

std::vector<const CLI::App*> commandsOf(const CLI::App& app) {
    return app.get_subcommands([](const CLI::App*) { return true; });
}

/// Whether one of the commands has an option of that name which takes a value.
bool takesValue(const CLI::App& app, const std::string& name) {
    return std::ranges::any_of(commandsOf(app), [&](const CLI::App* command) {
        const CLI::Option* const option = command->get_option_no_throw(name);
        return option != nullptr && option->get_items_expected_max() > 0;
    });
}

/// Whether the library would not take it for a name, but for a sign of its own or a list.
bool isSign(const std::string& name) {
    return name == "++" || (name.starts_with('[') && name.ends_with(']'));
}

/// In the order that the library wants, the last first. "--" is left out: the library takes what
/// follows it only while it has no name yet.
std::vector<std::string> arguments(const CLI::App& app, int argc, const char* const* argv) {
    std::vector<std::string> all;
    bool isBehindOptions = false;
    for (int i = 1; i < argc; ++i) {
        std::string argument = argv[i];
        const bool isOptionLike = argument.size() > 1 && argument.starts_with('-');
        if (isBehindOptions) {
            if (isOptionLike || isSign(argument)) argument.insert(0, "./");
        } else if (argument == "--") {
            isBehindOptions = true;
            continue;
        } else if (isSign(argument) && !takesValue(app, argv[i - 1])) {
            argument.insert(0, "./");
        }
        all.push_back(std::move(argument));
    }
    std::ranges::reverse(all);
    return all;
}

std::string namesOf(const CLI::App& app) {
    std::string names;
    const auto commands = commandsOf(app);
    for (const CLI::App* command : commands) {
        if (command != commands.front()) names += command == commands.back() ? " or " : ", ";
        names += command->get_name();
    }
    return names;
}

/// The words for arguments that the library cannot parse, where its own would not help.
std::string wordsFor(const CLI::ParseError& error, const CLI::App& app) {
    const std::string words = error.what();
    const auto rest = app.remaining(true);
    if (dynamic_cast<const CLI::RequiredError*>(&error) && app.get_subcommands().empty()) {
        return (rest.empty() ? "a command is missing" : "\"" + rest.front() + "\" is no command") +
               ": say " + namesOf(app);
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error)) {
        const bool isMissing = words.ends_with("missing");
        return words.substr(0, words.find(':')) +
               (isMissing ? " needs a value" : " is given more than once");
    }
    // Before what is missing: a name that begins with a dash is taken for an option.
    const bool isOption = !rest.empty() && rest.front().starts_with('-');
    if (isOption || dynamic_cast<const CLI::ExtrasError*>(&error)) {
        return "there is no option " + rest.front();
    }
    return words;
}

std::string misuse(const CLI::ParseError& error, const CLI::App& app) {
    const auto commands = app.get_subcommands();
    const std::string command = commands.empty() ? "" : commands.front()->get_name() + " ";
    return wordsFor(error, app) + "; see clipvane-cli " + command + "--help";
}

/// What --help and --version print.
std::string answer(const CLI::App& app, const CLI::ParseError& asked) {
    std::ostringstream text;
    app.exit(asked, text, text);
    return text.str();
}

void addHelpAndQuiet(CLI::App& app, bool& quiet) {
    app.set_help_flag("-h,--help", "print this and end");
    app.set_version_flag("--version", "clipvane-cli " CLIPVANE_VERSION,
                         "print the version and end");
    app.add_flag("-q,--quiet", quiet, "say nothing but errors");
}

Status run(int argc, const char* const* argv, Session& session) {
    bool quiet = false;
    CLI::App app("", "clipvane-cli");
    addHelpAndQuiet(app, quiet);
    explain(app);
    app.require_subcommand(1);

    const auto commands = allCommands();
    Command* chosen = nullptr;
    for (const auto& command : commands) {
        CLI::App* const sub = app.add_subcommand(command->name, command->summary);
        sub->group("Commands");
        addHelpAndQuiet(*sub, quiet);
        Options options(*sub);
        command->addOptions(options);
        explain(*sub, *command);
        sub->final_callback([&chosen, &command] { chosen = command.get(); });
    }

    try {
        app.parse(arguments(app, argc, argv));
    } catch (const CLI::ParseError& asked) {
        if (asked.get_exit_code() != 0) {
            return session.wrongUse(misuse(asked, app));
        }
        const auto written = writeOutput("-", AtomicFile::Existing::keep, answer(app, asked));
        if (!written) session.fail("standard output", written.error());
        return session.statusOr(Status::ok);
    }
    if (quiet) session.messages.beQuiet();
    return chosen->run(session);
}

}  // namespace

Status runProgram(int argc, const char* const* argv) {
    Session session;
    try {
        return run(argc, argv, session);
    } catch (const std::bad_alloc&) {
        session.fail("there is not enough memory");
        return Status::failed;
    }
}

}  // namespace clipvane::cli
