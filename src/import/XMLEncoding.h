// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "base/ViewOrCopy.h"

namespace clipvane {

/// The bytes of an XML document in an encoding that the parser reads itself.
struct XMLBytes {
    ViewOrCopy bytes;
    const char* encoding;
};

/// Decides in which encoding to read the document, so that a false or unknown encoding name in its
/// declaration costs nothing: a byte-order mark or the first bytes tell UTF-16 from the others, and
/// a mark tells UTF-8; otherwise a declared name that ICU knows counts, and UTF-8 where there is
/// none. Throws when memory runs out.
XMLBytes readableXML(std::string_view data);

}  // namespace clipvane
