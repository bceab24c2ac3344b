// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The keyed form of an event: every field stands under its key, and what is read is written and
// read again, whole.

#include <algorithm>
#include <nlohmann/json.hpp>

#include <clipvane/TimelineEventJSON.h>
#include "Events.h"
#include "Target.h"
#include "base/UTF8.h"

namespace {

using namespace clipvane;
using namespace clipvane::fuzz;

void requireFields(const TimelineEvent& event, std::string_view json) {
    const auto object = nlohmann::json::parse(json);
    auto id = object.at("id").get<std::string>();
    std::ranges::transform(id, id.begin(), [](char c) { return c >= 'a' ? char(c - 0x20) : c; });
    require(event.id.text() == id, "the identifier is the one in the text");
    TimelineEvent expected;
    const auto read = [&](const char* name, auto& field) {
        if constexpr (!std::is_same_v<decltype(field), UUID&>) object.at(name).get_to(field);
    };
    forEachField(read, expected);
    require(sameFields(event, expected), "every field is the one in the text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto event = decodeJSON(textOf(data, size));
    if (!event) {
        const Error& error = event.error();
        require(error.domain == "JSON" && !error.description.empty(), "a refusal has its reason");
        require(validUTF8Prefix(error.description) == error.description.size(),
                "a reason is UTF-8");
        return 0;
    }
    requireFields(*event, textOf(data, size));
    const std::string json = encodeJSON(*event);
    const auto again = decodeJSON(json);
    require(again && again->id == event->id && sameFields(*again, *event),
            "an event comes back whole");
    require(encodeJSON(*again) == json, "an event has one form");
    return 0;
}
