// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>
#include <vector>

#include "model/TimelineEvent.h"

namespace clipvane {

/// The events of an XMEML, FCPXML or generic XML document, in document order, with times at `fps`
/// frames per second. `data` is the file's raw bytes, in any encoding that the document declares.
/// Malformed XML yields the events before the error.
std::vector<TimelineEvent> readXML(std::string_view data, double fps);

}  // namespace clipvane
