// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/XMLFindings.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/Characters.h"

namespace clipvane::cli {
namespace {

struct Watched {
    std::string_view name;
    bool needsAttributes = false;  ///< without them it is a mere container, as in XMEML
};

constexpr Watched watched[]{
    {"ref-clip"},     {"video", true},   {"audio", true}, {"transitionitem"},
    {"transition"},   {"generatoritem"}, {"marker"},      {"chapter-marker"},
    {"caption"},      {"audition"},      {"keyword"},     {"filter"},
    {"filter-video"}, {"filter-audio"},  {"timemap"},     {"conform-rate"}};

bool isCalled(std::string_view element, std::string_view name) {
    return std::ranges::equal(element, name, {}, asciiLower);
}

}  // namespace

void XMLFindings::element(std::string_view name, bool hasAttributes, std::size_t line) {
    for (std::size_t i = 0; i < std::size(watched); ++i) {
        if (!isCalled(name, watched[i].name)) continue;
        if (watched[i].needsAttributes && !hasAttributes) return;
        Tally& tally = tallies[i];
        if (tally.count++ == 0) tally.firstLine = line;
        return;
    }
}

void XMLFindings::brokeOff(std::size_t line, std::size_t column, std::string_view reason) {
    found.push_back(
        {"broken-xml", Finding::Weight::suspicious, line, std::nullopt,
         "it breaks off in column " + std::to_string(column) + ": " + std::string(reason)});
}

Findings XMLFindings::take() {
    for (const auto& [i, tally] : tallies) {
        found.push_back({"unread-element", Finding::Weight::note, tally.firstLine, std::nullopt,
                         std::to_string(tally.count) + " <" + std::string(watched[i].name) +
                             (tally.count == 1 ? "> element is" : "> elements are") + " no event"});
    }
    return std::move(found);
}

}  // namespace clipvane::cli
