// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "cli/Options.h"
#include "cli/Session.h"
#include "cli/Status.h"

namespace clipvane::cli {

/// One of the program's commands. A new one is a file with a subclass of this and a line in each of
/// Commands.h and Commands.cpp.
class Command {
  public:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command() = default;

    virtual std::string name() const = 0;
    /// One line for the list of commands.
    virtual std::string summary() const = 0;
    /// Lines for the end of --help.
    virtual std::string examples() const = 0;

    /// Declares all but -q, -h and --version, which every command has.
    virtual void addOptions(Options& options) = 0;

    /// Called once, after the options are read.
    virtual Status run(Session& session) = 0;
};

}  // namespace clipvane::cli
