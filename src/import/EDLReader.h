// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>
#include <vector>

#include "model/TimelineEvent.h"

namespace clipvane {

/// The events of a CMX-style EDL, in the order of their lines. `text` is UTF-8.
std::vector<TimelineEvent> readEDL(std::string_view text);

}  // namespace clipvane
