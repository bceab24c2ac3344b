// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "model/TimelineEventJSON.h"

#include <nlohmann/json.hpp>

#include "base/UTF8.h"

namespace clipvane {
namespace {

/// Calls `field(key, value)` for the twelve fields behind "id", in the order of the record.
template <class Event, class Field>
void forEachFieldAfterID(Event& event, Field field) {
    field("eventNumber", event.eventNumber);
    field("clipName", event.clipName);
    field("reelID", event.reelID);
    field("sourceIn", event.sourceIn);
    field("sourceOut", event.sourceOut);
    field("recordIn", event.recordIn);
    field("recordOut", event.recordOut);
    field("format", event.format);
    field("track", event.track);
    field("comments", event.comments);
    field("highlighted", event.highlighted);
    field("rawText", event.rawText);
}

}  // namespace

std::string encodeJSON(const TimelineEvent& event) {
    nlohmann::ordered_json object;
    object["id"] = event.id.text();
    forEachFieldAfterID(event, [&](const char* key, const auto& value) { object[key] = value; });
    // A text that is not valid UTF-8, which no reader makes, must not lose the rest.
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

Result<TimelineEvent> decodeJSON(std::string_view json) try {
    const auto object = nlohmann::json::parse(json);
    TimelineEvent event;
    const auto id = UUID::parse(object.at("id").get_ref<const std::string&>());
    if (!id) return tl::unexpected(Error{"JSON", 0, "The value of \"id\" is not a UUID."});
    event.id = *id;
    // Neither a text nor a boolean is ever taken from a value of another type.
    forEachFieldAfterID(event, [&](const char* key, auto& value) { object.at(key).get_to(value); });
    return event;
} catch (const nlohmann::json::exception& error) {
    return tl::unexpected(Error{"JSON", error.id, replaceInvalidUTF8(error.what())});
}

}  // namespace clipvane
