// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

namespace clipvane {

/// Tells assistive technology what the toolkit would tell wrongly or not at all. Call it
/// once the application object is made.
void installAccessibility();

}  // namespace clipvane
