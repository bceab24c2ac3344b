// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include <clipvane/Error.h>
#include "base/AtomicFile.h"
#include "cli/Input.h"
#include "cli/Options.h"

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

void addOutputOption(Options& options, OutputOptions& output, const std::string& description);
void addFolderOption(Options& options, OutputOptions& output, const std::string& description);
void addInPlaceOption(Options& options, OutputOptions& output);
void addForceOption(Options& options, OutputOptions& output);

/// Why an output that is an input is refused.
Error isInputError();

/// Whether what is written to the output called `file` would be written over one of `inputs`.
bool isAnInput(const std::string& file, const std::vector<Input>& inputs);

}  // namespace clipvane::cli
