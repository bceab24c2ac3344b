// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "base/ViewOrCopy.h"

namespace clipvane {

/// A text from an XML timeline without every "file://", with a blank for every "%20", and without
/// blanks and newlines at both ends; in that order, each in one pass. Most texts need no copy.
ViewOrCopy cleanedXMLText(std::string_view text);

}  // namespace clipvane
