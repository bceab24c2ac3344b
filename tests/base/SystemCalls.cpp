// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/SystemCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <limits>
#include <utility>

namespace clipvane::test {
namespace {

struct Plan {
    int error = 0;
    int spared = 0;
    int refusalsLeft = 0;
    int refused = 0;
    std::function<void()> before;
};

Plan& planOf(SystemCall call) {
    static std::array<Plan, static_cast<std::size_t>(SystemCall::close) + 1> plans;
    return plans[static_cast<std::size_t>(call)];
}

std::size_t& mostWritten() {
    static std::size_t most = std::numeric_limits<std::size_t>::max();
    return most;
}

bool& waitsForTheDisk() {
    static bool waits = true;
    return waits;
}

/// Whether the call is refused now, with errno set.
bool isRefused(SystemCall call) {
    Plan& plan = planOf(call);
    if (plan.before) std::exchange(plan.before, nullptr)();
    if (plan.refusalsLeft == 0) return false;
    if (plan.spared > 0) {
        --plan.spared;
        return false;
    }
    if (plan.refusalsLeft > 0) --plan.refusalsLeft;
    ++plan.refused;
    errno = plan.error;
    return true;
}

}  // namespace

Refusal::Refusal(SystemCall call, int error, int times, int spared) : call(call) {
    planOf(call) = {error, spared, times, 0, nullptr};
}

Refusal::~Refusal() {
    planOf(call) = {};
}

int Refusal::count() const {
    return planOf(call).refused;
}

ShortWrites::ShortWrites(std::size_t most) {
    mostWritten() = most;
}

ShortWrites::~ShortWrites() {
    mostWritten() = std::numeric_limits<std::size_t>::max();
}

WithoutWaiting::WithoutWaiting() {
    waitsForTheDisk() = false;
}

WithoutWaiting::~WithoutWaiting() {
    waitsForTheDisk() = true;
}

Interruption::Interruption(SystemCall call, std::function<void()> action) : call(call) {
    planOf(call) = {0, 0, 0, 0, std::move(action)};
}

Interruption::~Interruption() {
    planOf(call) = {};
}

}  // namespace clipvane::test

// The linker's --wrap sends every call of `name` here, and that of `__real_name` to the system.
using clipvane::test::isRefused;
using clipvane::test::mostWritten;
using clipvane::test::SystemCall;
using clipvane::test::waitsForTheDisk;

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

int __real_stat(const char* path, struct stat* status);
int __wrap_stat(const char* path, struct stat* status) {
    return isRefused(SystemCall::stat) ? -1 : __real_stat(path, status);
}

int __real_lstat(const char* path, struct stat* status);
int __wrap_lstat(const char* path, struct stat* status) {
    return isRefused(SystemCall::lstat) ? -1 : __real_lstat(path, status);
}

int __real_fstat(int file, struct stat* status);
int __wrap_fstat(int file, struct stat* status) {
    return isRefused(SystemCall::fstat) ? -1 : __real_fstat(file, status);
}

off_t __real_lseek(int file, off_t offset, int whence);
off_t __wrap_lseek(int file, off_t offset, int whence) {
    return isRefused(SystemCall::lseek) ? -1 : __real_lseek(file, offset, whence);
}

ssize_t __real_read(int file, void* bytes, size_t count);
ssize_t __wrap_read(int file, void* bytes, size_t count) {
    return isRefused(SystemCall::read) ? -1 : __real_read(file, bytes, count);
}

ssize_t __real_write(int file, const void* bytes, size_t count);
ssize_t __wrap_write(int file, const void* bytes, size_t count) {
    if (isRefused(SystemCall::write)) return -1;
    return __real_write(file, bytes, std::min(count, mostWritten()));
}

int __real_fsync(int file);
int __wrap_fsync(int file) {
    if (isRefused(SystemCall::fsync)) return -1;
    return waitsForTheDisk() ? __real_fsync(file) : 0;
}

int __real_fchmod(int file, mode_t mode);
int __wrap_fchmod(int file, mode_t mode) {
    return isRefused(SystemCall::fchmod) ? -1 : __real_fchmod(file, mode);
}

int __real_fchown(int file, uid_t owner, gid_t group);
int __wrap_fchown(int file, uid_t owner, gid_t group) {
    return isRefused(SystemCall::fchown) ? -1 : __real_fchown(file, owner, group);
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

int __real_renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                     unsigned flags);
int __wrap_renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                     unsigned flags) {
    if (isRefused(SystemCall::renameat2)) return -1;
    return __real_renameat2(fromFolder, from, toFolder, to, flags);
}

int __real_unlink(const char* path);
int __wrap_unlink(const char* path) {
    return isRefused(SystemCall::unlink) ? -1 : __real_unlink(path);
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
