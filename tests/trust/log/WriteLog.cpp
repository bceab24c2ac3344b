// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Writes its arguments to the program's log, one entry each, as the program does.

#include <cstdio>

#include "ui/AppLog.h"
#include "ui/Startup.h"

int main(int argc, char** argv) {
    clipvane::ignoreWriteSignals();
    for (int i = 1; i < argc; ++i) clipvane::AppLog::write(argv[i]);
    std::puts("still here");
}
