// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/AtomicFile.h"
#include "cli/Input.h"

namespace CLI {
class App;
}

namespace clipvane::cli {

/// The options about where data go.
struct OutputOptions {
    std::string file;  ///< as the user wrote it; empty without -o
    bool force = false;

    AtomicFile::Existing existing() const {
        return force ? AtomicFile::Existing::replace : AtomicFile::Existing::keep;
    }
};

void addOutputOption(CLI::App& app, OutputOptions& options, const std::string& description);
void addForceOption(CLI::App& app, OutputOptions& options);

/// Whether what is written to the output called `file` would be written over one of `inputs`.
bool isAnInput(const std::string& file, const std::vector<Input>& inputs);

}  // namespace clipvane::cli
