// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Input.h"
#include "cli/Options.h"
#include "cli/TimelineFormat.h"

namespace clipvane::cli {

/// The options about what is read, and how.
struct ReadingOptions {
    std::optional<double> fps;       ///< read at this rate, whatever the file names
    std::optional<double> to;        ///< convert to this rate afterwards
    std::string from;                ///< format of streams, and of names that do not tell
    std::vector<std::string> names;  ///< as the user wrote them
};

void addFPSOption(
    Options& options, ReadingOptions& reading,
    const std::string& description = "read at R frames a second, whatever the file names");
void addToOption(Options& options, ReadingOptions& reading);
void addFromOption(Options& options, ReadingOptions& reading,
                   const std::vector<std::string>& choices);
/// The timelines themselves; `title` is what --help calls one.
void addNames(Options& options, ReadingOptions& reading, const std::string& title);

/// The format to read `input` as: by its name, else by --from.
std::optional<TimelineFormat> formatOf(const Input& input, const ReadingOptions& options);

/// What is wrong with the inputs before any of them is looked at: a stream that is named twice or
/// whose format nobody tells, or a --from that says something about none. Nothing when all is well.
std::optional<std::string> misuseOf(const std::vector<Input>& inputs,
                                    const ReadingOptions& options);

}  // namespace clipvane::cli
