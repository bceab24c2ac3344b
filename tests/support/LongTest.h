// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <cstdlib>

/// The first line of a test that takes more than 130 ms in the release: one that is left out with
/// CLIPVANE_SHORT_TESTS in the environment. Valgrind makes tests a hundred times slower.
#define CLIPVANE_LONG_TEST() \
    if (std::getenv("CLIPVANE_SHORT_TESTS") != nullptr) GTEST_SKIP() << "a long test"
