// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLElement.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>

#include <algorithm>
#include <array>
#include <string>

#include "base/Characters.h"

namespace clipvane {
namespace {

struct Entry {
    std::string_view name;
    XMLElement element;
};

constexpr std::array entries{
    Entry{"asset", XMLElement::asset},
    Entry{"asset-clip", XMLElement::clip},
    Entry{"clip", XMLElement::clip},
    Entry{"clipitem", XMLElement::clip},
    Entry{"clipname", XMLElement::clipName},
    Entry{"comment", XMLElement::comments},
    Entry{"comments", XMLElement::comments},
    Entry{"duration", XMLElement::duration},
    Entry{"end", XMLElement::end},
    Entry{"event", XMLElement::event},
    Entry{"file", XMLElement::file},
    Entry{"gap", XMLElement::clip},
    Entry{"in", XMLElement::in},
    Entry{"masterclipid", XMLElement::reel},
    Entry{"mc-clip", XMLElement::clip},
    Entry{"media", XMLElement::asset},
    Entry{"name", XMLElement::name},
    Entry{"out", XMLElement::out},
    Entry{"project", XMLElement::container},
    Entry{"record", XMLElement::record},
    Entry{"reel", XMLElement::reel},
    Entry{"reelid", XMLElement::reel},
    Entry{"reelname", XMLElement::reel},
    Entry{"sequence", XMLElement::container},
    Entry{"source", XMLElement::source},
    Entry{"start", XMLElement::start},
    Entry{"sync-clip", XMLElement::clip},
    Entry{"title", XMLElement::clip},
    Entry{"track", XMLElement::track},
};

constexpr std::size_t longestName = 12;
static_assert(std::ranges::all_of(entries,
                                  [](const Entry& e) { return e.name.size() <= longestName; }));

// Every element start and end is looked up, so each name has a slot of its own in a table.
constexpr std::size_t slotCount = 128;

constexpr std::size_t slotOf(std::string_view name) {
    const auto first = static_cast<unsigned char>(name.front());
    const auto middle = static_cast<unsigned char>(name[name.size() / 2]);
    const auto last = static_cast<unsigned char>(name.back());
    return (name.size() + first + middle * 2u + last * 6u) % slotCount;
}

consteval std::array<Entry, slotCount> makeSlots() {
    std::array<Entry, slotCount> slots{};
    for (const Entry& entry : entries) {
        Entry& slot = slots[slotOf(entry.name)];
        if (!slot.name.empty()) throw "two names share a slot: choose other factors";
        slot = entry;
    }
    return slots;
}

constexpr std::array<Entry, slotCount> slots = makeSlots();

XMLElement lookUp(std::string_view lowerCaseName) {
    const Entry& slot = slots[slotOf(lowerCaseName)];
    return slot.name == lowerCaseName ? slot.element : XMLElement::other;
}

/// For names with a character such as the Kelvin sign, whose lower case is an ASCII letter.
XMLElement classifyBeyondASCII(std::string_view name) {
    std::string lowerCaseName;
    icu::StringByteSink<std::string> sink(&lowerCaseName);
    UErrorCode error = U_ZERO_ERROR;
    icu::CaseMap::utf8ToLower("", 0, {name.data(), static_cast<std::int32_t>(name.size())}, sink,
                              nullptr, error);
    return U_SUCCESS(error) ? lookUp(lowerCaseName) : XMLElement::other;
}

}  // namespace

XMLElement classifyXMLElement(std::string_view name) {
    constexpr std::size_t longestSequence = 4;
    if (name.empty() || name.size() > longestName * longestSequence) return XMLElement::other;
    // Most documents write their names in lower case.
    if (const XMLElement element = lookUp(name); element != XMLElement::other) return element;
    std::array<char, longestName * longestSequence> lowerCaseName;
    bool ascii = true;
    for (std::size_t i = 0; i < name.size(); ++i) {
        ascii &= static_cast<unsigned char>(name[i]) < 0x80;
        lowerCaseName[i] = asciiLower(name[i]);
    }
    return ascii ? lookUp({lowerCaseName.data(), name.size()}) : classifyBeyondASCII(name);
}

}  // namespace clipvane
