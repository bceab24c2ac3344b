#pragma once

#include <string>
#include <string_view>

namespace clipvane {

/// `text` without every "file://", with a blank for every "%20", and without blanks and newlines at
/// both ends; in that order, each in one pass.
std::string cleanedXMLText(std::string_view text);

}  // namespace clipvane
