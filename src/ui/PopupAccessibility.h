// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

class QAccessibleInterface;
class QComboBox;

namespace clipvane {

/// A pop-up for assistive technology: it has its own name or its label's, where the toolkit would
/// name it after the chosen entry. The entry is its text, and the number in the entry's data, if
/// there is one, its value.
QAccessibleInterface* accessiblePopup(QComboBox* popup);

}  // namespace clipvane
