// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Descriptors.h"
#include "cli/Impossible.h"
#include "cli/Program.h"

int main(int argc, char** argv) {
    clipvane::cli::prepareStandardFiles();
    clipvane::cli::throwImpossibleNumbers();
    return static_cast<int>(clipvane::cli::runProgram(argc, argv));
}
