// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/TimelineFormat.h"

#include <algorithm>
#include <string>

#include "base/Characters.h"

namespace clipvane::cli {
namespace {

/// The text after the last "." of the last component, in lower case.
std::string extensionOf(const std::filesystem::path& path) {
    std::string name = path.filename().native();
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) return {};
    name.erase(0, dot + 1);
    std::ranges::transform(name, name.begin(), asciiLower);
    return name;
}

}  // namespace

std::optional<TimelineFormat> formatOf(const std::filesystem::path& name) {
    const std::string extension = extensionOf(name);
    if (extension == "edl" || extension == "txt") return TimelineFormat::edl;
    for (const std::string_view xml : {"xml", "fcpxml", "xmeml", "fcpxmld"}) {
        if (extension == xml) return TimelineFormat::xml;
    }
    return std::nullopt;
}

bool isBundleName(const std::filesystem::path& name) {
    return extensionOf(name) == "fcpxmld";
}

std::optional<TimelineFormat> formatCalled(std::string_view name) {
    if (name == "edl") return TimelineFormat::edl;
    if (name == "xml") return TimelineFormat::xml;
    if (name == "jsonl") return TimelineFormat::jsonLines;
    return std::nullopt;
}

}  // namespace clipvane::cli
