// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>

namespace clipvane {

/// The program's own dark palette, which no desktop theme changes.
QPalette darkPalette();

}  // namespace clipvane
