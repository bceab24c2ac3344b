// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLAttributes.h"

#include "import/NameTable.h"

namespace clipvane {
namespace {

using AttributeTable = NameTable<XMLAttribute, 20>;

constexpr AttributeTable attributes(std::array<AttributeTable::Entry, 20>{{
    {"asset", XMLAttribute::asset},     {"duration", XMLAttribute::duration},
    {"end", XMLAttribute::end},         {"highlighted", XMLAttribute::highlighted},
    {"id", XMLAttribute::id},           {"in", XMLAttribute::in},
    {"lane", XMLAttribute::lane},       {"name", XMLAttribute::name},
    {"number", XMLAttribute::number},   {"offset", XMLAttribute::offset},
    {"out", XMLAttribute::out},         {"pathurl", XMLAttribute::pathurl},
    {"reel", XMLAttribute::reel},       {"ref", XMLAttribute::ref},
    {"src", XMLAttribute::src},         {"start", XMLAttribute::start},
    {"tcStart", XMLAttribute::tcStart}, {"timelineStart", XMLAttribute::timelineStart},
    {"track", XMLAttribute::track},     {"uid", XMLAttribute::uid},
}});

}  // namespace

XMLAttributes::XMLAttributes(const char* const* namesAndValues) {
    for (const char* const* pair = namesAndValues; *pair != nullptr; pair += 2) {
        if (const auto attribute = attributes.find(pair[0])) {
            values[static_cast<std::size_t>(*attribute)] = pair[1];
        }
    }
}

}  // namespace clipvane
