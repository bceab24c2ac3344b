// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/TimelineEventJSON.h>

#include <nlohmann/json.hpp>

#include "base/UTF8.h"

namespace clipvane {
namespace {

using json = nlohmann::ordered_json;

const auto& written(const auto& value) {
    return value;
}

std::string written(const UUID& id) {
    return id.text();
}

/// Neither a text nor a boolean is ever taken from a value of another type.
void read(const json& from, auto& value) {
    from.get_to(value);
}

void read(const json& from, UUID& id) {
    const auto parsed = UUID::parse(from.get_ref<const std::string&>());
    if (!parsed) throw Error{"JSON", 0, "The value of \"id\" is not a UUID."};
    id = *parsed;
}

}  // namespace

std::string encodeJSON(const TimelineEvent& event) {
    json object;
    forEachField([&](const char* key, const auto& value) { object[key] = written(value); }, event);
    // A text that is not valid UTF-8 must not lose the rest. No reader makes one, but another
    // program may.
    return object.dump(-1, ' ', false, json::error_handler_t::replace);
}

Result<TimelineEvent> decodeJSON(std::string_view text) try {
    const auto object = json::parse(text);
    TimelineEvent event;
    forEachField([&](const char* key, auto& value) { read(object.at(key), value); }, event);
    return event;
} catch (const Error& notAUUID) {
    return tl::unexpected(notAUUID);
} catch (const json::exception& error) {
    return tl::unexpected(Error{"JSON", error.id, replaceInvalidUTF8(error.what())});
}

}  // namespace clipvane
