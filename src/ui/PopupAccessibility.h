// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

class QAccessibleInterface;
class QComboBox;

namespace clipvane {

/// A pop-up as assistive technology meets it: under its own name or its label's, where the toolkit
/// would name it after the chosen entry. That entry is its text; its number, if the entry's data is
/// one, is its value.
QAccessibleInterface* accessiblePopup(QComboBox* popup);

}  // namespace clipvane
