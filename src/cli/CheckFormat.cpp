// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/CheckFormat.h"

#include <nlohmann/json.hpp>

#include <clipvane/FrameRate.h>
#include "cli/Counted.h"
#include "cli/Shown.h"

namespace clipvane::cli {
namespace {

using nlohmann::ordered_json;

std::string weightName(const Finding& finding) {
    return finding.weight == Finding::Weight::note ? "note" : "suspicious";
}

std::string placeOf(const Finding& finding) {
    if (finding.line) return "line " + std::to_string(*finding.line) + ": ";
    if (finding.row) return "row " + std::to_string(*finding.row) + ": ";
    return "";
}

std::string dumped(const ordered_json& object) {
    return object.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

ordered_json orNull(const std::optional<std::size_t>& number) {
    return number ? ordered_json(*number) : ordered_json();
}

}  // namespace

std::string findingsText(std::string_view file, const TimelineDocument& document,
                         const Findings& findings) {
    std::string text = shown(file == "-" ? "standard input" : file) + ": " +
                       counted(document.events.size(), "event") + " at " + formatFPS(document.fps) +
                       " fps (" + document.fpsSource + ")\n";
    for (const Finding& finding : findings) {
        text += "  " + weightName(finding) + ": " + placeOf(finding) + shown(finding.text) + "\n";
    }
    return text;
}

std::string findingLines(std::string_view file, const TimelineDocument& document,
                         const Findings& findings) {
    std::string lines = dumped({{"file", file},
                                {"events", document.events.size()},
                                {"fps", document.fps},
                                {"fpsSource", document.fpsSource}});
    for (const Finding& finding : findings) {
        lines += dumped({{"file", file},
                         {"kind", finding.kind},
                         {"weight", weightName(finding)},
                         {"line", orNull(finding.line)},
                         {"row", orNull(finding.row)},
                         {"text", finding.text}});
    }
    return lines;
}

}  // namespace clipvane::cli
