// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

namespace clipvane {

/// A weather vane's arrow over the clips of a timeline: the pictures of packaging/icons, built into
/// the program.
QIcon applicationIcon();

}  // namespace clipvane
