// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/EventLines.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>

#include <clipvane/FrameRateSource.h>
#include <clipvane/TimelineEventJSON.h>
#include "base/Number.h"
#include "cli/FrameCounts.h"
#include "cli/JSONText.h"
#include "cli/Reason.h"

namespace clipvane::cli {
namespace {

using nlohmann::json;

void appendValue(std::string& line, std::string_view text) {
    appendJSONText(line, text);
}
void appendValue(std::string& line, const UUID& id) {
    appendJSONText(line, id.text());
}
void appendValue(std::string& line, bool value) {
    line += value ? "true" : "false";
}

/// The thirteen keys with the event's values, as `encodeJSON` writes them, without a brace behind.
void appendEvent(std::string& line, const TimelineEvent& event) {
    char before = '{';
    const auto append = [&](std::string_view key, const auto& value) {
        line += std::exchange(before, ',');
        line += '"';
        line += key;
        line += "\":";
        appendValue(line, value);
    };
    forEachField(append, event);
}

void appendCount(std::string& line, std::string_view key, FrameCounts::Count count) {
    line += ",\"";
    line += key;
    line += "\":";
    if (count) {
        appendInteger(line, *count);
    } else {
        line += "null";
    }
}

void appendCounts(std::string& line, const FrameCounts& counts) {
    appendCount(line, "sourceInFrames", counts.sourceIn);
    appendCount(line, "sourceOutFrames", counts.sourceOut);
    appendCount(line, "recordInFrames", counts.recordIn);
    appendCount(line, "recordOutFrames", counts.recordOut);
    appendCount(line, "sourceDurationFrames", counts.sourceDuration);
    appendCount(line, "recordDurationFrames", counts.recordDuration);
}

/// An event's thirteen keys with values of their types.
const json& eventForm() {
    static const json form = json::parse(encodeJSON({}));
    return form;
}

Error lacks(const std::string& key, std::string_view kind) {
    return because("lacks \"" + key + "\", or it is not " + std::string(kind));
}

/// What is wrong with the fields beside the event's own; nothing when all is well.
std::optional<Error> checkKeys(const json& object) {
    if (!object.is_object()) return because("is no JSON object");
    for (const auto& [key, sample] : eventForm().items()) {
        const auto found = object.find(key);
        if (found == object.end() || found->type() != sample.type()) {
            return lacks(key, sample.is_boolean() ? "true or false" : "a text");
        }
    }
    const auto fps = object.find("fps");
    if (fps == object.end() || !fps->is_number() || !(fps->get<double>() > 0)) {
        return lacks("fps", "a number above 0");
    }
    const auto source = object.find("fpsSource");
    const bool isKnown =
        source != object.end() &&
        (*source == fpsSourceDefault || *source == fpsSourceFile || *source == fpsSourceManual);
    if (!isKnown) return lacks("fpsSource", R"("Default", "File" or "Manual")");
    return std::nullopt;
}

/// Adds the event of `line` to `document`, which has the rate of its lines, or of the first that
/// has another than `fps`.
Result<void> takeLine(std::string_view line, std::optional<double> fps,
                      TimelineDocument& document) {
    const json object = json::parse(line, nullptr, false);
    if (object.is_discarded()) return tl::unexpected(because("is not JSON"));
    if (auto fault = checkKeys(object)) return tl::unexpected(std::move(*fault));
    const auto lineRate = object["fps"].get<double>();
    const auto lineSource = object["fpsSource"].get<std::string>();
    const bool isFirst = document.events.empty();
    if (isFirst || (fps && document.fps == *fps)) document.fps = lineRate;
    if (!fps && lineRate != document.fps) {
        return tl::unexpected(
            because("has another \"fps\" than the lines before; --fps would make them one"));
    }
    // One guess among them makes the whole of it one.
    if (isFirst || lineSource == fpsSourceDefault) document.fpsSource = lineSource;
    auto event = decodeJSON(line);
    if (!event) return tl::unexpected(because("has an \"id\" that is no UUID"));
    document.events.push_back(*event);
    return {};
}

}  // namespace

std::string eventLines(const TimelineDocument& document, std::string_view file) {
    std::string origin = ",\"file\":";
    appendJSONText(origin, file);
    origin += ",\"row\":";
    std::string rate = ",\"fps\":" + json(document.fps).dump() + ",\"fpsSource\":";
    appendJSONText(rate, document.fpsSource);
    std::string lines;
    std::int64_t row = 0;
    for (const EventView& event : document.events) {
        appendEvent(lines, event.record());
        lines += origin;
        appendInteger(lines, ++row);
        lines += rate;
        appendCounts(lines, frameCounts(event, document.fps));
        lines += "}\n";
    }
    return lines;
}

Result<std::unique_ptr<TimelineDocument>> parseEventLines(std::string_view text,
                                                          std::optional<double> fps) {
    auto document = std::make_unique<TimelineDocument>();
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.find_first_not_of(" \t\r") == std::string_view::npos) continue;
        if (auto taken = takeLine(line, fps, *document); !taken) {
            return tl::unexpected(
                because("line " + std::to_string(number) + " " + taken.error().description));
        }
    }
    return document;
}

}  // namespace clipvane::cli
