// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

class QAccessibleInterface;
class QPlainTextEdit;

namespace clipvane {

/// A plain text of several lines as assistive technology meets it. The toolkit's own would place
/// the characters of all lines on the first, where no magnifier finds the caret.
QAccessibleInterface* accessibleText(QPlainTextEdit* view);

}  // namespace clipvane
