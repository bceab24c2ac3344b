#pragma once

#include <cstddef>

namespace clipvane::test {

// The whole program's memory, libraries included, with allocations that fail on demand: malloc and
// its relatives are this program's own, and operator new asks them.

enum class Failing {
    once,      ///< the chosen allocation alone
    fromThere  ///< the chosen one and all that follow
};

/// From now on the `first`-th allocation (counted from 1) fails.
void startFailing(std::size_t first, Failing failing);

/// Allocations succeed again.
void stopFailing();

/// How many allocations have failed since `startFailing`.
std::size_t failedAllocations();

/// Whether memory is allocated that nothing refers to any more, and a report of it on standard
/// error. Only the address sanitizer knows.
bool hasLeak();

}  // namespace clipvane::test
