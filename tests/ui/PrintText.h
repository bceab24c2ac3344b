// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <ostream>

/// Lets a failing comparison show texts of the toolkit as texts. Every file of the window's tests
/// gets this by a compiler option, so that none can be without.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
