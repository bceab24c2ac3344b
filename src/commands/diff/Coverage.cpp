// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Coverage.h"

#include <algorithm>
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
    starts.resize(axes + std::size_t{1});
    for (const AxisStretch& next : stretches) {
        const bool continues = !parts.empty() && parts.back().stretch.axis == next.axis;
        if (!continues) {
            add({next, 0});
            continue;
        }
        Part& last = parts.back();
        if (next.from <= last.stretch.to) {
            last.stretch.to = std::max(last.stretch.to, next.to);
        } else {
            const std::int64_t length = subtractChecked(last.stretch.to, last.stretch.from);
            add({next, addChecked(last.before, length)});
        }
    }
    for (std::uint32_t axis = 0; axis < axes; ++axis) starts[axis + 1] += starts[axis];
}

void Coverage::add(const Part& part) {
    parts.push_back(part);
    ++starts[part.stretch.axis + 1];
}

std::int64_t Coverage::within(const AxisStretch& stretch) const {
    if (stretch.axis + std::size_t{1} >= starts.size()) return 0;
    const std::span ofAxis(parts.begin() + starts[stretch.axis],
                           parts.begin() + starts[stretch.axis + 1]);
    if (ofAxis.empty()) return 0;
    return upTo(ofAxis, stretch.to) - upTo(ofAxis, stretch.from);
}

std::int64_t Coverage::upTo(std::span<const Part> ofAxis, std::int64_t position) {
    const auto behind = std::ranges::upper_bound(
        ofAxis, position, {}, [](const Part& part) { return part.stretch.from; });
    if (behind == ofAxis.begin()) return 0;
    const Part& part = *(behind - 1);
    const std::int64_t end = std::min(position, part.stretch.to);
    return addChecked(part.before, subtractChecked(end, part.stretch.from));
}

}  // namespace clipvane::diff
