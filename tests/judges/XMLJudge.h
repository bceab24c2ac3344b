// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>
#include <vector>

#include <clipvane/TimelineEvent.h>

namespace clipvane::test {

/// The events of an XML document that the parser reads as `encoding`, element by element as the
/// reader is described, with every attribute in a map and every name in lower case. Identifiers
/// stay zero. `Overflow` where the product is fatal.
std::vector<TimelineEvent> judgedXML(std::string_view data, const char* encoding, double fps);

}  // namespace clipvane::test
