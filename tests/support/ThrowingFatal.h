// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <clipvane/Fatal.h>

namespace clipvane::test {

/// While it lives, `fatal` throws a `Reason` instead of ending the program, for tests that
/// meet far too many fatal cases to start a process for each.
class ThrowingFatal {
  public:
    struct Reason {
        std::string text;
    };

    ThrowingFatal()
        : earlier(setFatalHandler(
              +[](std::string_view reason) { throw Reason{std::string(reason)}; })) {}
    ThrowingFatal(const ThrowingFatal&) = delete;
    ThrowingFatal& operator=(const ThrowingFatal&) = delete;
    ~ThrowingFatal() { setFatalHandler(earlier); }

  private:
    FatalHandler earlier;
};

}  // namespace clipvane::test
