#include "model/TimelineEventJSON.h"

#include <nlohmann/json.hpp>

namespace clipvane {
namespace {

/// Calls `field(key, text)` for the eleven text fields between "id" and "highlighted" or after it,
/// and `flag` in its place, all in the order of the record.
template <class Event, class Field, class Flag>
void forEachFieldAfterID(Event& event, Field field, Flag flag) {
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
    flag("highlighted", event.highlighted);
    field("rawText", event.rawText);
}

}  // namespace

std::string encodeJSON(const TimelineEvent& event) {
    nlohmann::ordered_json object;
    object["id"] = event.id.text();
    const auto put = [&](const char* key, const auto& value) { object[key] = value; };
    forEachFieldAfterID(event, put, put);
    // A text that is not valid UTF-8, which no reader makes, must not lose the rest.
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

Result<TimelineEvent> decodeJSON(std::string_view json) try {
    const auto object = nlohmann::json::parse(json);
    TimelineEvent event;
    const auto id = UUID::parse(object.at("id").get_ref<const std::string&>());
    if (!id) return tl::unexpected(Error{"JSON", 0, "The value of \"id\" is not a UUID."});
    event.id = *id;
    const auto take = [&](const char* key, auto& value) { object.at(key).get_to(value); };
    const auto takeFlag = [&](const char* key, bool& value) {
        value = object.at(key).get_ref<const bool&>();
    };
    forEachFieldAfterID(event, take, takeFlag);
    return event;
} catch (const nlohmann::json::exception& error) {
    return tl::unexpected(Error{"JSON", error.id, error.what()});
}

}  // namespace clipvane
