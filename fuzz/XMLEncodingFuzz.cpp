// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// A document in UTF-8 gives the same events when it is written in UTF-16 of either byte order.

#include <unicode/unistr.h>

#include <clipvane/TimelineParser.h>
#include "Events.h"
#include "Target.h"
#include "base/UTF8.h"
#include "import/XMLEncoding.h"
#include "judges/Pattern.h"
#include "support/Records.h"

namespace {

std::string utf16Bytes(const icu::UnicodeString& text, bool bigEndian) {
    std::string bytes;
    for (std::int32_t i = 0; i < text.length(); ++i) {
        const char high = static_cast<char>(text[i] >> 8);
        const char low = static_cast<char>(text[i] & 0xFF);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    const std::string_view document = textOf(data, size);
    const auto eventsOf = [](std::string_view bytes) {
        return unlessFatal([&] { return TimelineParser::parseXML(bytes, 25); });
    };
    const XMLBytes readable = readableXML(document);
    const std::string_view bytes = readable.bytes.view();
    const auto events = eventsOf(document);
    const bool isUTF8 =
        std::string_view(readable.encoding) == "UTF-8" && validUTF8Prefix(bytes) == bytes.size();
    if (!isUTF8 || bytes.empty()) return 0;

    icu::UnicodeString text = test::utf16(bytes);
    if (text[0] != u'\uFEFF') text.insert(0, u'\uFEFF');
    for (const bool bigEndian : {false, true}) {
        const auto others = eventsOf(utf16Bytes(text, bigEndian));
        require(events.has_value() == others.has_value(), "all encodings stop, or none");
        require(!events || sameFields(*events, test::records(*others)),
                "all encodings give the same events");
    }
    return 0;
}
