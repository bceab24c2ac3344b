// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLElement.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>

#include <algorithm>
#include <array>
#include <string>

#include "base/Characters.h"
#include "import/NameTable.h"

namespace clipvane {
namespace {

using ElementTable = NameTable<XMLElement, 29>;

constexpr ElementTable elements(std::array<ElementTable::Entry, 29>{{
    {"asset", XMLElement::asset},
    {"asset-clip", XMLElement::clip},
    {"clip", XMLElement::clip},
    {"clipitem", XMLElement::clip},
    {"clipname", XMLElement::clipName},
    {"comment", XMLElement::comments},
    {"comments", XMLElement::comments},
    {"duration", XMLElement::duration},
    {"end", XMLElement::end},
    {"event", XMLElement::event},
    {"file", XMLElement::file},
    {"gap", XMLElement::clip},
    {"in", XMLElement::in},
    {"masterclipid", XMLElement::reel},
    {"mc-clip", XMLElement::clip},
    {"media", XMLElement::asset},
    {"name", XMLElement::name},
    {"out", XMLElement::out},
    {"project", XMLElement::container},
    {"record", XMLElement::record},
    {"reel", XMLElement::reel},
    {"reelid", XMLElement::reel},
    {"reelname", XMLElement::reel},
    {"sequence", XMLElement::container},
    {"source", XMLElement::source},
    {"start", XMLElement::start},
    {"sync-clip", XMLElement::clip},
    {"title", XMLElement::clip},
    {"track", XMLElement::track},
}});

constexpr std::size_t longestName = 12;

bool isLowerCaseASCII(std::string_view name) {
    return std::ranges::all_of(
        name, [](char c) { return static_cast<unsigned char>(c) < 0x80 && asciiLower(c) == c; });
}

/// Empty when it cannot be made. ICU makes it, since a few characters outside ASCII, such as the
/// Kelvin sign, become ASCII letters.
std::string lowerCase(std::string_view name) {
    std::string lowerCaseName;
    icu::StringByteSink<std::string> sink(&lowerCaseName);
    UErrorCode error = U_ZERO_ERROR;
    icu::CaseMap::utf8ToLower("", 0, {name.data(), static_cast<std::int32_t>(name.size())}, sink,
                              nullptr, error);
    return U_SUCCESS(error) ? lowerCaseName : std::string();
}

}  // namespace

XMLElement classifyXMLElement(std::string_view name) {
    constexpr std::size_t longestSequence = 4;
    if (name.empty() || name.size() > longestName * longestSequence) return XMLElement::other;
    if (const auto element = elements.find(name)) return *element;
    // Most documents write their names in lower case.
    if (isLowerCaseASCII(name)) return XMLElement::other;
    const std::string lowerCaseName = lowerCase(name);
    if (lowerCaseName.empty()) return XMLElement::other;
    return elements.find(lowerCaseName).value_or(XMLElement::other);
}

}  // namespace clipvane
