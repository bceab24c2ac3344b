// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <clipvane/TimelineEvent.h>

namespace clipvane {

/// What "Copy Info" puts on the pasteboard: ten labelled lines about `event` and the document's
/// rate (`fps`, in frames per second), joined by line feeds. Values stand as they are, a comment's
/// line breaks included.
std::string copyInfoText(const TimelineEvent& event, double fps, std::string_view fpsSource);

}  // namespace clipvane
