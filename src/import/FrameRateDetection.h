// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace clipvane {

/// The frame rate, in frames per second, that a file's whole text (UTF-8) names, as written:
/// neither rounded nor range-checked, but above zero or not a number. Nothing when it names none.
std::optional<double> detectFPS(std::string_view in);

}  // namespace clipvane
