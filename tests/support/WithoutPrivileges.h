// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <unistd.h>

namespace clipvane::test {

/// While it lives, a test run by root has an ordinary user's rights to files; for any other user
/// nothing changes.
class WithoutPrivileges {
  public:
    WithoutPrivileges() {
        if (wasRoot && ::seteuid(nobody) != 0) ::_exit(2);
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
    ~WithoutPrivileges() {
        if (wasRoot && ::seteuid(0) != 0) ::_exit(2);
    }

  private:
    static constexpr uid_t nobody = 65534;
    const bool wasRoot = ::geteuid() == 0;
};

}  // namespace clipvane::test
