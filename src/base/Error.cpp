#include "base/Error.h"

#include <system_error>

#include "base/UTF8.h"

namespace clipvane {

Error fileError(std::string_view action, const std::filesystem::path& path, int code) {
    std::string description = "The file \"" + displayName(path) + "\" could not be ";
    description.append(action);
    description += ": " + std::generic_category().message(code) + ".";
    return {"POSIX", code, std::move(description)};
}

std::string displayName(const std::filesystem::path& path) {
    return replaceInvalidUTF8(path.filename().native());
}

}  // namespace clipvane
