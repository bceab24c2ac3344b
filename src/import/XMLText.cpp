#include "import/XMLText.h"

#include "base/Characters.h"

namespace clipvane {
namespace {

std::string replacingAll(std::string_view text, std::string_view what, std::string_view with) {
    std::string replaced;
    replaced.reserve(text.size());
    while (true) {
        const std::size_t found = text.find(what);
        replaced += text.substr(0, found);
        if (found == std::string_view::npos) return replaced;
        replaced += with;
        text.remove_prefix(found + what.size());
    }
}

}  // namespace

std::string cleanedXMLText(std::string_view text) {
    constexpr std::string_view fileScheme = "file://";
    constexpr std::string_view encodedBlank = "%20";
    // Most texts hold neither a colon nor a percent sign, and need no copy for replacing.
    const bool hasScheme = text.find(fileScheme) != std::string_view::npos;
    if (!hasScheme && text.find(encodedBlank) == std::string_view::npos) {
        return std::string(trimBlanksAndNewlines(text));
    }
    const std::string path = replacingAll(text, fileScheme, "");
    return std::string(trimBlanksAndNewlines(replacingAll(path, encodedBlank, " ")));
}

}  // namespace clipvane
