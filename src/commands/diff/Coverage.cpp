// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Coverage.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "base/Number.h"
#include "commands/diff/ByIndex.h"

namespace clipvane::diff {

Coverage::Coverage(std::vector<AxisStretch> stretches) {
    std::uint32_t axes = 0;
    for (const AxisStretch& stretch : stretches) axes = std::max(axes, stretch.axis + 1);
    stretches = sortedByIndex(
        std::move(stretches), axes, [](const AxisStretch& s) { return s.axis; },
        [](const AxisStretch& a, const AxisStretch& b) { return a.from < b.from; });
    for (const AxisStretch& next : stretches) {
        const bool continues = !parts.empty() && parts.back().stretch.axis == next.axis;
        if (!continues) {
            parts.push_back({next, 0});
            continue;
        }
        Part& last = parts.back();
        if (next.from <= last.stretch.to) {
            last.stretch.to = std::max(last.stretch.to, next.to);
        } else {
            const std::int64_t length = subtractChecked(last.stretch.to, last.stretch.from);
            parts.push_back({next, addChecked(last.before, length)});
        }
    }
}

std::int64_t Coverage::within(const AxisStretch& stretch) const {
    return upTo(stretch.axis, stretch.to) - upTo(stretch.axis, stretch.from);
}

std::int64_t Coverage::upTo(std::uint32_t axis, std::int64_t position) const {
    const auto behind = std::ranges::upper_bound(
        parts, std::tuple(axis, position), {},
        [](const Part& part) { return std::tuple(part.stretch.axis, part.stretch.from); });
    if (behind == parts.begin()) return 0;
    const Part& part = *(behind - 1);
    if (part.stretch.axis != axis) return 0;
    const std::int64_t end = std::min(position, part.stretch.to);
    return addChecked(part.before, subtractChecked(end, part.stretch.from));
}

}  // namespace clipvane::diff
