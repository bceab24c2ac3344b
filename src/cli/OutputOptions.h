// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include <clipvane/Error.h>
#include "base/AtomicFile.h"
#include "cli/Input.h"

namespace CLI {
class App;
}

namespace clipvane::cli {

/// The options about where data go.
struct OutputOptions {
    std::string file;            ///< of -o, as the user wrote it; else empty
    std::string folder;          ///< of -d; else empty
    bool inPlace = false;        ///< the inputs themselves
    bool offersInPlace = false;  ///< whether the command has that option
    bool force = false;

    AtomicFile::Existing existing() const {
        return force ? AtomicFile::Existing::replace : AtomicFile::Existing::keep;
    }
};

void addOutputOption(CLI::App& app, OutputOptions& options, const std::string& description);
void addFolderOption(CLI::App& app, OutputOptions& options, const std::string& description);
void addInPlaceOption(CLI::App& app, OutputOptions& options);
void addForceOption(CLI::App& app, OutputOptions& options);

/// Why an output that is an input is refused.
Error isInputError();

/// Whether what is written to the output called `file` would be written over one of `inputs`.
bool isAnInput(const std::string& file, const std::vector<Input>& inputs);

}  // namespace clipvane::cli
