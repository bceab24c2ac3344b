// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/Error.h>
#include "base/AtomicFile.h"
#include "base/Descriptor.h"
#include "cli/FileIdentity.h"

namespace clipvane::cli {

/// Where data go: standard output, another stream that is open already, /dev/null, or a file that
/// takes its place whole in `finish` and not before.
///
/// Errors are reasons to follow `name()`.
class Output {
  public:
    /// "-" is standard output, and so is no name at all.
    static Result<Output> open(const std::string& name, AtomicFile::Existing existing);

    /// "standard output", or the name as the user wrote it.
    const std::string& name() const { return called; }

    /// The columns of the terminal that this leads to; nothing when it leads to none.
    std::optional<std::size_t> columns() const;

    Result<void> write(std::string_view bytes);

    /// Hands over what is still held back; a file takes its place.
    Result<void> finish();

    /// Of the regular file that would be written over; nothing when there is none.
    static std::optional<FileIdentity> identityOf(const std::string& name);

  private:
    explicit Output(std::string called) : called(std::move(called)) {}

    Result<void> flush();
    Result<void> hand(std::string_view bytes) const;

    std::string called;
    int descriptor = -1;
    Descriptor device;  ///< of /dev/null
    std::optional<AtomicFile> file;
    std::string pending;       ///< for the descriptor
    std::size_t heldBack = 0;  ///< the most that may be pending
};

/// What messages call the output called `name`.
std::string outputTitle(const std::string& name);

/// Writes `text` as the whole of the output called `name`.
Result<void> writeOutput(const std::string& name, AtomicFile::Existing existing,
                         std::string_view text);

}  // namespace clipvane::cli
