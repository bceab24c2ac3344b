// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Reads good documents with every possible fault in one place: cut off after each byte, and with
// each byte removed, doubled or changed into others. Whatever comes out is whole: its texts are
// valid UTF-8, and the events that stand before the fault are there as if there were none.
//
//     every_change [VALUES]
//
// VALUES is how many of the 256 bytes each byte becomes; without it all.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <clipvane/TimelineParser.h>
#include "base/UTF8.h"
#include "documents/GoodDocument.h"
#include "support/Records.h"
#include "support/SameFields.h"
#include "support/ThrowingFatal.h"

namespace {

using namespace clipvane;
using namespace clipvane::test;
using namespace std::string_view_literals;

std::size_t readings = 0;
std::size_t stops = 0;
std::size_t faults = 0;

std::vector<TimelineEvent> read(const GoodDocument& document, std::string_view bytes) {
    if (document.isEDL) return records(TimelineParser::parseEDL(replaceInvalidUTF8(bytes)));
    return records(TimelineParser::parseXML(bytes, TimelineParser::detectFPS(bytes).value_or(24)));
}

bool isValid(const auto& field) {
    if constexpr (std::is_same_v<decltype(field), const std::string&>) {
        return validUTF8Prefix(field) == field.size();
    }
    return true;
}

/// Nothing, or what is wrong with the events of a document whose first `whole` events stand before
/// its fault.
const char* faultIn(const std::vector<TimelineEvent>& events,
                    const std::vector<TimelineEvent>& good, std::size_t whole) {
    if (events.size() < whole) return "an event before the fault is lost";
    for (std::size_t i = 0; i < whole; ++i) {
        if (!test::sameFields(events[i], good[i])) return "an event before the fault has changed";
    }
    for (const TimelineEvent& event : events) {
        bool isText = true;
        forEachField([&](const char*, const auto& field) { isText = isText && isValid(field); },
                     event);
        if (!isText) return "a text is not valid UTF-8";
        if (event.id == UUID{}) return "an event has no identifier";
        if (event.format != (event.rawText.empty() ? "" : good[0].format)) {
            return "an event has another format";
        }
    }
    return nullptr;
}

void tryFaulty(const GoodDocument& document, const std::vector<TimelineEvent>& good,
               std::string_view bytes, std::size_t position) {
    ++readings;
    const char* fault = nullptr;
    try {
        fault = faultIn(read(document, bytes), good, document.wholeEventsBefore(position));
    } catch (const ThrowingFatal::Reason&) {
        ++stops;
    }
    if (fault == nullptr || ++faults > 10) return;
    std::fprintf(stderr, "%s, byte %zu: %s\n%.*s\n", document.name, position, fault,
                 static_cast<int>(bytes.size()), bytes.data());
}

/// The bytes that mean something to a reader, then all others.
std::vector<char> changes() {
    std::string order(
        "<>&\"'/;:= \n\r\t-!?[]%#*.0159aeFsx,\0\x01\x7F\x80\xBF\xC0\xC2\xE2\xED\xF4\xFF"sv);
    for (int byte = 0; byte < 256; ++byte) {
        if (order.find(static_cast<char>(byte)) == std::string::npos) {
            order += static_cast<char>(byte);
        }
    }
    return {order.begin(), order.end()};
}

void tryAll(const GoodDocument& document, const std::vector<char>& values) {
    const std::string bytes = document.bytes();
    const auto good = read(document, bytes);
    if (good.size() != document.events.size()) {
        ++faults;
        std::fprintf(stderr, "%s: %zu events of %zu\n", document.name, good.size(),
                     document.events.size());
        return;
    }
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        tryFaulty(document, good, std::string_view(bytes).substr(0, i), i);
        std::string changed = bytes;
        for (const char value : values) {
            changed[i] = value;
            tryFaulty(document, good, changed, i);
        }
        changed.erase(i, 1);
        tryFaulty(document, good, changed, i);
        changed.insert(i, 2, bytes[i]);
        tryFaulty(document, good, changed, i);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const ThrowingFatal guard;
    std::vector<char> values = changes();
    if (argc > 1) values.resize(std::min<std::size_t>(std::strtoull(argv[1], nullptr, 10), 256));
    for (const GoodDocument& document : goodDocuments()) {
        const std::size_t before = readings;
        const std::size_t stopsBefore = stops;
        tryAll(document, values);
        std::printf("%-14s %zu bytes, %zu faulty documents, %zu deliberate stops\n", document.name,
                    document.bytes().size(), readings - before, stops - stopsBefore);
    }
    std::printf("%zu faulty documents, %zu deliberate stops, %zu failures\n", readings, stops,
                faults);
    return faults == 0 ? 0 : 1;
}
