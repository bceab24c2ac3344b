// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The lines of JSON that the batch program takes: a refusal has its reason, and what is read is
// printed and read again, whole.

#include <clipvane/TimelineEventJSON.h>
#include "Target.h"
#include "base/UTF8.h"
#include "cli/EventLines.h"
#include "support/SameFields.h"

namespace {

using namespace clipvane;
using namespace clipvane::fuzz;

void requireSame(const TimelineDocument& a, const TimelineDocument& b) {
    require(a.fps == b.fps && a.fpsSource == b.fpsSource, "the rate comes back");
    require(a.events.size() == b.events.size(), "every event comes back");
    for (std::size_t i = 0; i < a.events.size(); ++i) {
        require(test::sameFields(a.events[i].record(), b.events[i].record()),
                "an event comes back whole");
    }
}

/// Each line begins with the event's keyed form.
void requireEncoded(const TimelineDocument& document, std::string_view lines) {
    for (const EventView& event : document.events) {
        std::string form = encodeJSON(event.record());
        form.pop_back();  // the brace
        require(lines.starts_with(form), "a line begins with the event's keyed form");
        lines.remove_prefix(lines.find('\n') + 1);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto document = cli::parseEventLines(textOf(data, size), std::nullopt);
    if (!document) {
        const std::string& reason = document.error().description;
        require(reason.starts_with("line ") && validUTF8Prefix(reason) == reason.size(),
                "a refusal names its line");
        return 0;
    }
    const auto lines = unlessFatal([&] { return cli::eventLines(**document, "-"); });
    if (!lines) return 0;
    requireEncoded(**document, *lines);
    const auto again = cli::parseEventLines(*lines, std::nullopt);
    require(again.has_value(), "what is printed can be read");
    requireSame(**document, **again);
    return 0;
}
