// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <utility>

#include "cli/Options.h"
#include "cli/Session.h"
#include "cli/Status.h"

namespace clipvane::cli {

/// One of the program's commands. A new one is a file with a subclass of this and a line in each of
/// Commands.h and Commands.cpp.
class Command {
  public:
    Command(std::string name, std::string summary, std::string examples)
        : name(std::move(name)), summary(std::move(summary)), examples(std::move(examples)) {}
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command() = default;

    const std::string name;
    const std::string summary;   ///< one line for the list of commands
    const std::string examples;  ///< lines for the end of --help

    /// Declares all but -q, -h and --version, which every command has.
    virtual void addOptions(Options& options) = 0;

    /// Called once, after the options are read.
    virtual Status run(Session& session) = 0;
};

}  // namespace clipvane::cli
