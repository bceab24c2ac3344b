// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>

namespace clipvane {

// Sizes are in logical pixels, whatever the screen's resolution claims to be.

/// The proportional face: Inter, or else the desktop's own.
QFont systemFont(int size, QFont::Weight weight = QFont::Normal);

/// The monospaced face: JetBrains Mono, or else the desktop's own. Without ligatures: a clip
/// name must show the characters that it has.
QFont monospacedFont(int size, QFont::Weight weight = QFont::Normal);

}  // namespace clipvane
