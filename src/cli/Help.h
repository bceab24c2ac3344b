// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

namespace CLI {
class App;
}

namespace clipvane::cli {

class Command;

/// Makes --help of the program, and of one of its commands, begin with what its rates mean.
void explain(CLI::App& program);
void explain(CLI::App& app, const Command& command);

}  // namespace clipvane::cli
