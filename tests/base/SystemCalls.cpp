#include "base/SystemCalls.h"

#include <fcntl.h>
#include <sys/types.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace clipvane::test {
namespace {

struct Plan {
    int error = 0;
    int refusalsLeft = 0;
    int refused = 0;
    std::function<void()> before;
};

Plan& planOf(SystemCall call) {
    static std::array<Plan, 10> plans;
    return plans[static_cast<std::size_t>(call)];
}

/// Whether the call is refused now, with errno set.
bool isRefused(SystemCall call) {
    Plan& plan = planOf(call);
    if (plan.before) std::exchange(plan.before, nullptr)();
    if (plan.refusalsLeft == 0) return false;
    if (plan.refusalsLeft > 0) --plan.refusalsLeft;
    ++plan.refused;
    errno = plan.error;
    return true;
}

}  // namespace

Refusal::Refusal(SystemCall call, int error, int times) : call(call) {
    planOf(call) = {error, times, 0, nullptr};
}

Refusal::~Refusal() {
    planOf(call) = {};
}

int Refusal::count() const {
    return planOf(call).refused;
}

Interruption::Interruption(SystemCall call, std::function<void()> action) : call(call) {
    planOf(call) = {0, 0, 0, std::move(action)};
}

Interruption::~Interruption() {
    planOf(call) = {};
}

}  // namespace clipvane::test

// The linker's --wrap sends every call of `name` here, and that of `__real_name` to the system.
using clipvane::test::isRefused;
using clipvane::test::SystemCall;

extern "C" {

int __real_open(const char* path, int flags, ...);
int __wrap_open(const char* path, int flags, mode_t mode) {
    const bool withoutName = (flags & O_TMPFILE) == O_TMPFILE;
    if (isRefused(withoutName ? SystemCall::openWithoutName : SystemCall::open)) return -1;
    return __real_open(path, flags, mode);
}

int __real_access(const char* path, int mode);
int __wrap_access(const char* path, int mode) {
    return isRefused(SystemCall::access) ? -1 : __real_access(path, mode);
}

ssize_t __real_read(int file, void* bytes, size_t count);
ssize_t __wrap_read(int file, void* bytes, size_t count) {
    return isRefused(SystemCall::read) ? -1 : __real_read(file, bytes, count);
}

ssize_t __real_write(int file, const void* bytes, size_t count);
ssize_t __wrap_write(int file, const void* bytes, size_t count) {
    return isRefused(SystemCall::write) ? -1 : __real_write(file, bytes, count);
}

int __real_fsync(int file);
int __wrap_fsync(int file) {
    return isRefused(SystemCall::fsync) ? -1 : __real_fsync(file);
}

int __real_fchmod(int file, mode_t mode);
int __wrap_fchmod(int file, mode_t mode) {
    return isRefused(SystemCall::fchmod) ? -1 : __real_fchmod(file, mode);
}

int __real_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags);
int __wrap_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    if (isRefused(SystemCall::linkat)) return -1;
    return __real_linkat(fromFolder, from, toFolder, to, flags);
}

int __real_rename(const char* from, const char* to);
int __wrap_rename(const char* from, const char* to) {
    return isRefused(SystemCall::rename) ? -1 : __real_rename(from, to);
}

int __real_close(int file);
int __wrap_close(int file) {
    // Even a close that fails has closed the descriptor.
    const bool refused = isRefused(SystemCall::close);
    const int error = errno;
    const int result = __real_close(file);
    if (!refused) return result;
    errno = error;
    return -1;
}

}  // extern "C"
