// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Input.h"
#include "cli/OutputOptions.h"
#include "cli/Session.h"

namespace clipvane::cli {

/// What an input's output in a folder is called.
using OutputNaming = std::string (*)(const Input& input);

/// What is wrong with the outputs as the options name them, before any file is looked at: none or
/// several of -o, -d and --in-place, or one that does not go with these inputs.
std::optional<std::string> misuseOf(const OutputOptions& options, const std::vector<Input>& inputs);

/// Where the output of each input goes, in their order; makes the folder. Nothing for an input
/// whose output would lie over an input, and nothing for all of them if the outputs of two would be
/// one file: that is said.
std::vector<std::optional<std::string>> planOutputs(const OutputOptions& options,
                                                    const std::vector<Input>& inputs,
                                                    OutputNaming naming, Session& session);

}  // namespace clipvane::cli
