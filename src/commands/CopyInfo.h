#pragma once

#include <string>
#include <string_view>

#include "model/TimelineEvent.h"

namespace clipvane {

/// What "Copy Info" puts on the pasteboard: ten labelled lines about `event` and the document's
/// rate (`fps`, in frames per second), joined by line feeds. Values stand as they are, a comment's
/// line breaks included.
std::string copyInfoText(const TimelineEvent& event, double fps, std::string_view fpsSource);

}  // namespace clipvane
