// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <clocale>

namespace clipvane::test {

/// Makes the locale called `name` that of the process for its life. Those made for the tests are
/// found through LOCPATH, which the test run sets.
class ScopedLocale {
  public:
    explicit ScopedLocale(const char* name) : set(std::setlocale(LC_ALL, name) != nullptr) {}
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;
    ~ScopedLocale() { std::setlocale(LC_ALL, "C"); }

    bool isSet() const { return set; }

  private:
    bool set;
};

/// The locales whose numbers or letter cases differ from those of "C".
inline constexpr const char* localesOfTests[] = {"de_DE.UTF-8", "tr_TR.UTF-8"};

}  // namespace clipvane::test
