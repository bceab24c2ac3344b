// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

class QApplication;

namespace clipvane {

// What has to be set up before and after the application object is made.

/// Ignores the signals that would end the program when a write fails: to a closed pipe, or beyond a
/// limit on the size of files.
void ignoreWriteSignals();

/// Keeps the toolkit from reading the desktop's colours, from storing settings, and from writing
/// to the standard streams. Call it before the application object is made.
void prepareToolkit();

/// Gives the program its name, its look and its fonts.
void dressApplication(QApplication& application);

}  // namespace clipvane
