// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QStyle>

namespace clipvane {

/// The program's own drawing for one of the toolkit's icons: what its alerts and its file panel
/// show. An icon that has none is null.
QIcon drawnIcon(QStyle::StandardPixmap which);

}  // namespace clipvane
