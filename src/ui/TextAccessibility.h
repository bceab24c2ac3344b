// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

class QAccessibleInterface;
class QPlainTextEdit;

namespace clipvane {

/// A plain-text editor for assistive technology. The toolkit's own version reports the characters
/// of all lines as if they stood on the first, where no magnifier finds the caret.
QAccessibleInterface* accessibleText(QPlainTextEdit* view);

}  // namespace clipvane
