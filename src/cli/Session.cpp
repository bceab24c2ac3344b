// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Session.h"

namespace clipvane::cli {

void Session::fail(std::string_view name, const Error& error) {
    fail(std::string(name) + ": " + error.description);
}

void Session::fail(std::string_view sentence) {
    messages.error(sentence);
    failed = true;
}

Status Session::wrongUse(std::string_view sentence) {
    messages.error(sentence);
    return Status::wrongUse;
}

}  // namespace clipvane::cli
