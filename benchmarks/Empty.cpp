// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// A program that does nothing, with the libraries of the batch program: what starting one costs.

int main() {
    return 0;
}
