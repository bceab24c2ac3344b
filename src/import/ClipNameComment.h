// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace clipvane {

/// The name that a clip-name comment of an EDL gives, such as "* FROM CLIP NAME: A001_C003": the
/// text after the last colon, trimmed, possibly empty; the whole trimmed line when it has no colon.
/// Nothing when the line, in upper case, does not contain "FROM CLIP NAME". A view into the line.
std::optional<std::string_view> clipNameComment(std::string_view line);

}  // namespace clipvane
