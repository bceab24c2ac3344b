// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/Messages.h"

#include <cmath>

#include <clipvane/FrameRate.h>
#include "base/Number.h"
#include "base/UTF8.h"

namespace clipvane {
namespace {

std::string withPoint(double value) {
    std::string text = shortestDecimal(value);
    if (std::isfinite(value) && text.find('.') == std::string::npos) text += ".0";
    return text;
}

std::string withUnit(double fps) {
    return formatFPS(fps) + " fps";
}

}  // namespace

std::string parsedLine(const TimelineParseResult& parsed, const std::filesystem::path& url) {
    return "Parsed " + std::to_string(parsed.events.size()) + " events from " +
           replaceInvalidUTF8(url.native()) + " at " + withPoint(parsed.fps) + " fps.";
}

std::string openFailedLine(const Error& error) {
    return "Open timeline failed: " + error.description;
}

std::string loadedStatus(const TimelineDocument& document, const std::filesystem::path& url) {
    return "Loaded " + std::to_string(document.events.size()) + " events from " + displayName(url) +
           ". FPS: " + formatFPS(document.fps) + " (" + document.fpsSource + ").";
}

Alert openFailedAlert(const Error& error) {
    return {Alert::Style::warning, "Could not open timeline", error.description};
}

Alert checkFrameRateAlert() {
    return {Alert::Style::informational, "Check Project Frame Rate",
            "Please make sure to set the right project frame rate. Incorrect frame rate might "
            "produce incorrect timecodes."};
}

std::string convertedStatus(std::size_t timecodes, double from, double to) {
    return "Converted " + std::to_string(timecodes) + " timecodes from " + withUnit(from) + " to " +
           withUnit(to) + ".";
}

std::string removedStatus(std::size_t remaining) {
    return "Removed event. " + std::to_string(remaining) + " events remain for export.";
}

std::string exportedStatus(const std::filesystem::path& url) {
    return "Exported " + displayName(url) + ".";
}

Alert exportFailedAlert(const Error& error) {
    return {Alert::Style::warning, "Export failed", error.description};
}

}  // namespace clipvane
