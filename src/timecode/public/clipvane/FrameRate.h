// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace clipvane {

/// The rates that the user can choose, in frames per second.
inline constexpr std::array standardFPSValues{23.976, 24.0, 25.0, 29.97, 30.0,
                                              47.952, 48.0, 50.0, 59.94, 60.0};

/// Frames counted in a second: the rate rounded to the nearest integer, halves away from zero, and
/// at least 1. Fatal for a rate that is not finite or rounds outside 64 bits.
std::int64_t frameBase(double fps);

/// The rate as a short label: "25" within 0.001 of a whole number, otherwise up to three decimals
/// without trailing zeros ("23.976"). Independent of the locale. Fatal as `frameBase` is.
std::string formatFPS(double fps);

}  // namespace clipvane
