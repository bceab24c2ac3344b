// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace clipvane::cli {

/// Appends `text` to `line` as a text of JSON, in quotes. What is not UTF-8 becomes U+FFFD.
void appendJSONText(std::string& line, std::string_view text);

}  // namespace clipvane::cli
