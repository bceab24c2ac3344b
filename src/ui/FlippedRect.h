// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <cmath>

#include "ui/Geometry.h"

namespace clipvane {

/// `rect` as the toolkit wants it: in whole pixels, from the top left corner of an area
/// `outerHeight` high. The edges are rounded, not the sizes, so that a margin is the same wherever
/// it lies.
inline QRect flipped(const Rect& rect, double outerHeight) {
    const auto edge = [](double value) { return static_cast<int>(std::round(value)); };
    const int left = edge(rect.x);
    const int top = edge(outerHeight - (rect.y + rect.height));
    return {left, top, edge(rect.x + rect.width) - left, edge(outerHeight - rect.y) - top};
}

}  // namespace clipvane
