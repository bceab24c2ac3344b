// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Program.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <new>
#include <sstream>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Output.h"
#include "cli/Session.h"

namespace clipvane::cli {
namespace {

/// The library reads signs of its own into some names.
std::string asArgument(const std::string& argument) {
    const bool isSign = argument == "++" || (argument.starts_with('[') && argument.ends_with(']'));
    return isSign ? "./" + argument : argument;
}

/// The library takes them from the back.
std::vector<std::string> arguments(int argc, const char* const* argv) {
    std::vector<std::string> reversed;
    for (int i = argc - 1; i > 0; --i) reversed.push_back(asArgument(argv[i]));
    return reversed;
}

/// One line, as messages are.
std::string oneLine(std::string text) {
    for (char& c : text) {
        if (c == '\n') c = ' ';
    }
    return text;
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
        CLI::App* const sub = app.add_subcommand(command->name(), command->summary());
        addHelpAndQuiet(*sub, quiet);
        command->addOptions(*sub);
        explain(*sub, *command);
        sub->final_callback([&chosen, &command] { chosen = command.get(); });
    }

    try {
        app.parse(arguments(argc, argv));
    } catch (const CLI::ParseError& asked) {
        if (asked.get_exit_code() != 0) {
            return session.wrongUse(oneLine(asked.what()) + "; see clipvane-cli --help");
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
