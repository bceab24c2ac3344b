// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include "cli/FileIdentity.h"
#include "cli/Input.h"
#include "cli/Session.h"

namespace clipvane::cli {

/// A timeline to be looked at.
struct WalkedTimeline {
    Input input;
    bool isNamed = false;  ///< by the user; otherwise it was found in a folder
};

/// The timelines that `inputs` are, or that lie in them and in the folders within: every file with
/// one of the five extensions, and folders that are one timeline, in the order of their paths'
/// bytes. Linked folders are walked, too, and no file comes twice, nor does `output`, the file that
/// the report goes to. What cannot be looked into is said, and so is a folder that holds none.
std::vector<WalkedTimeline> walkTimelines(const std::vector<Input>& inputs,
                                          const std::optional<FileIdentity>& output,
                                          Session& session);

}  // namespace clipvane::cli
