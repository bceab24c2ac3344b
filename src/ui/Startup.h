// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

class QApplication;

namespace clipvane {

// What has to be settled before and after the application object is made.

/// Turns the signals off that would end the program where a write fails: a full pipe, a limit on
/// the size of files.
void ignoreWriteSignals();

/// Keeps the toolkit from reading the desktop's colours, from keeping settings, and from talking
/// on the standard streams. Before the application object.
void prepareToolkit();

/// Gives the program its name, its look and its fonts.
void dressApplication(QApplication& application);

}  // namespace clipvane
