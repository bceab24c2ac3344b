// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

namespace clipvane {

/// Lets assistive technology find the frame-rate pop-up under its own name. The toolkit would name
/// it after the chosen entry. Call once the application object is there.
void installPopupAccessibility();

}  // namespace clipvane
