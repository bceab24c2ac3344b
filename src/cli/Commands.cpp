// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Commands.h"

namespace clipvane::cli {

std::vector<std::unique_ptr<Command>> allCommands() {
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(makeListCommand());
    commands.push_back(makeConvertCommand());
    commands.push_back(makeCheckCommand());
    commands.push_back(makeStampCommand());
    commands.push_back(makeDiffCommand());
    return commands;
}

}  // namespace clipvane::cli
