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

constexpr std::array<Watched, 16> watched{{{"ref-clip"},
                                           {"video", true},
                                           {"audio", true},
                                           {"transitionitem"},
                                           {"transition"},
                                           {"generatoritem"},
                                           {"marker"},
                                           {"chapter-marker"},
                                           {"caption"},
                                           {"audition"},
                                           {"keyword"},
                                           {"filter"},
                                           {"filter-video"},
                                           {"filter-audio"},
                                           {"timemap"},
                                           {"conform-rate"}}};

bool isCalled(std::string_view element, std::string_view name) {
    return std::ranges::equal(element, name, {}, asciiLower);
}

}  // namespace

void XMLFindings::element(std::string_view name, bool hasAttributes, std::size_t line) {
    static_assert(watched.size() == watchedCount);
    for (std::size_t i = 0; i < watched.size(); ++i) {
        if (!isCalled(name, watched[i].name)) continue;
        if (watched[i].needsAttributes && !hasAttributes) return;
        if (tallies[i].count++ == 0) tallies[i].firstLine = line;
        return;
    }
}

void XMLFindings::brokeOff(std::size_t line, std::size_t column, std::string_view reason) {
    found.push_back(
        {"broken-xml", Finding::Weight::suspicious, line, std::nullopt,
         "it breaks off in column " + std::to_string(column) + ": " + std::string(reason)});
}

Findings XMLFindings::take() {
    for (std::size_t i = 0; i < watched.size(); ++i) {
        const std::size_t count = tallies[i].count;
        if (count == 0) continue;
        found.push_back({"unread-element", Finding::Weight::note, tallies[i].firstLine,
                         std::nullopt,
                         std::to_string(count) + " <" + std::string(watched[i].name) +
                             (count == 1 ? "> element is" : "> elements are") + " no event"});
    }
    return std::move(found);
}

}  // namespace clipvane::cli
