// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <string_view>

namespace clipvane {

/// UTF-8 as the toolkit's text.
inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text);
}

/// `text` for one line on the screen: line breaks and other controls become blanks, and of a very
/// long text only its two ends stay, since measuring a megabyte takes a fifth of a second.
QString displayLine(const QString& text);

/// `text` as a tool tip, which shows it as it stands, markup and all, in lines of 420 logical
/// pixels if it is longer than one.
QString toolTipText(const QString& text);

}  // namespace clipvane
