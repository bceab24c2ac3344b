// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <clipvane/Error.h>
#include "base/File.h"
#include "cli/FileIdentity.h"
#include "cli/TimelineFormat.h"

namespace clipvane::cli {

/// A timeline as the user names it: a regular file, a folder that is one timeline, or a stream,
/// which is "-" or what a shell gives for `<(...)`.
class Input {
  public:
    explicit Input(std::string name);

    /// As the user wrote it, or as it was reached in a folder.
    const std::string& name() const { return given; }
    /// The same for messages: "standard input" for "-".
    std::string title() const { return given == "-" ? "standard input" : given; }

    bool isStream() const { return stream.has_value(); }
    /// The descriptor that is read.
    std::optional<int> streamNumber() const { return stream; }

    /// What the name says of the format; nothing for a stream, and for a name of another kind.
    std::optional<TimelineFormat> format() const;

    /// The last component without the slashes behind it, and without its extension.
    std::filesystem::path fileName() const;
    std::filesystem::path stem() const;

    /// Of the file that is read, so that nothing is written over it.
    std::optional<FileIdentity> identity() const;

    /// The bytes. Fails with a reason to follow the name (see Reason.h).
    Result<FileBytes> read() const;

  private:
    std::string given;
    std::filesystem::path place;  ///< `given` without slashes at its end
    std::optional<int> stream;
};

/// What cannot be looked at is no folder; it will say why when it is read.
bool isFolder(const std::filesystem::path& path);

std::vector<Input> inputsNamed(const std::vector<std::string>& names);

}  // namespace clipvane::cli
