// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

namespace clipvane::test {

/// `top` laid over an opaque `bottom`.
inline QColor over(const QColor& top, const QColor& bottom) {
    const auto mix = [&](int a, int b) {
        return (a * top.alpha() + b * (255 - top.alpha()) + 127) / 255;
    };
    return {mix(top.red(), bottom.red()), mix(top.green(), bottom.green()),
            mix(top.blue(), bottom.blue())};
}

/// How bright a colour is to the eye, 0...1, as the accessibility guidelines of the web reckon it.
inline double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// The contrast of two opaque colours by the same guidelines: 1...21.
inline double contrast(const QColor& a, const QColor& b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace clipvane::test
