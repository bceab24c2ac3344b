// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <clipvane/Error.h>
#include "cli/Messages.h"
#include "cli/Status.h"

namespace clipvane::cli {

/// What one call of the program says, and how it ends.
class Session {
  public:
    Messages messages;

    /// A file failed: says so, and lets the program end with status 1 when the others are done.
    void fail(std::string_view name, const Error& error);
    void fail(std::string_view sentence);

    /// A remark, silenced by -q.
    void note(std::string_view sentence) { messages.note(sentence); }

    /// The options or arguments do not go together.
    Status wrongUse(std::string_view sentence);

    bool hasFailed() const { return failed; }

    /// `otherwise`, unless a file failed.
    Status statusOr(Status otherwise) const { return failed ? Status::failed : otherwise; }

  private:
    bool failed = false;
};

}  // namespace clipvane::cli
