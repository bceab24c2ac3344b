// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include "cli/Command.h"

namespace clipvane::cli {

/// All of the program's commands, in the order of --help.
std::vector<std::unique_ptr<Command>> allCommands();

std::unique_ptr<Command> makeListCommand();
std::unique_ptr<Command> makeConvertCommand();
std::unique_ptr<Command> makeCheckCommand();
std::unique_ptr<Command> makeStampCommand();
std::unique_ptr<Command> makeDiffCommand();

}  // namespace clipvane::cli
