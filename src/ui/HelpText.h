// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace clipvane {

/// The text of the help window: 22 lines, without a line feed after the last.
std::string_view helpText();

}  // namespace clipvane
