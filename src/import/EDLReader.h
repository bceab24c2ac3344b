// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include <clipvane/EventList.h>
#include "base/File.h"

namespace clipvane {

// The events of a CMX-style EDL, in the order of their lines. The list keeps the text, which is
// UTF-8, and the events stand in it.
EventList readEDL(FileBytes text);
EventList readEDL(std::string text);

}  // namespace clipvane
