#pragma once

#include <unistd.h>

namespace clipvane {

/// Lets permissions count for its life even where the tests run as root, whom the kernel grants
/// everything.
class UnprivilegedUser {
  public:
    UnprivilegedUser() {
        if (wasRoot) changed = ::seteuid(nobody) == 0;
    }
    UnprivilegedUser(const UnprivilegedUser&) = delete;
    UnprivilegedUser& operator=(const UnprivilegedUser&) = delete;
    ~UnprivilegedUser() {
        if (changed && ::seteuid(0) != 0) ::_exit(1);
    }

    /// Whether permissions count now.
    bool isEffective() const { return !wasRoot || changed; }

  private:
    static constexpr uid_t nobody = 65534;
    bool wasRoot = ::geteuid() == 0;
    bool changed = false;
};

}  // namespace clipvane
