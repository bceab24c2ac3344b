// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace clipvane::cli {

/// Why `line` of an EDL, which is no event, looks like one all the same: it holds four timecodes in
/// whatever notation, or four counts in their place. Empty when it does not.
std::string whyUnread(std::string_view line);

}  // namespace clipvane::cli
