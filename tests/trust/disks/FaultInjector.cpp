// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Preloaded into a program, makes chosen system calls fail, fall short, or kill the program.
//
//     CLIPVANE_FAULTS        what is to happen: CALL:WHICH:ACTION, several parted by commas.
//                            WHICH counts the calls of that kind from 1: "2", "1-100" or "always".
//                            ACTION is an errno value, "short" (half is moved), "zero" (nothing
//                            is written, and no error), "kill-before", "kill-after", "shrink" or
//                            "grow" (the file at the path below, before the call).
//     CLIPVANE_FAULTS_FROM   nothing counts until a call names this path
//     CLIPVANE_FAULTS_TRACE  a file that gets the name of every call that counts, one a line
//
// A call has its system name; opening without a name is "open_tmpfile"; opening, syncing and
// closing a folder are "open_folder", "fsync_folder" and "close_folder". The standard streams never
// count.

#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Fault {
    std::string call;
    long first = 1;
    long last = LONG_MAX;
    std::string action;
};

std::string setting(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

/// What stands before the next `separator`, which `text` loses with it.
std::string take(std::string& text, char separator) {
    const std::size_t end = text.find(separator);
    std::string piece = text.substr(0, end);
    text.erase(0, end == std::string::npos ? end : end + 1);
    return piece;
}

std::vector<Fault> readFaults(std::string text) {
    std::vector<Fault> faults;
    while (!text.empty()) {
        std::string one = take(text, ',');
        Fault fault;
        fault.call = take(one, ':');
        std::string which = take(one, ':');
        if (which != "always") {
            fault.first = std::stol(take(which, '-'));
            fault.last = which.empty() ? fault.first : std::stol(which);
        }
        fault.action = one;
        faults.push_back(fault);
    }
    return faults;
}

struct Plan {
    std::vector<Fault> faults = readFaults(setting("CLIPVANE_FAULTS"));
    std::string from = setting("CLIPVANE_FAULTS_FROM");
    std::string trace = setting("CLIPVANE_FAULTS_TRACE");
    bool isArmed = from.empty();
    std::map<std::string, long, std::less<>> counts;
};

Plan& plan() {
    static Plan plan;
    return plan;
}

void note(std::string_view call) {
    if (plan().trace.empty()) return;
    const long file =
        ::syscall(SYS_openat, AT_FDCWD, plan().trace.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666);
    const std::string line = std::string(call) + '\n';
    ::syscall(SYS_write, file, line.data(), line.size());
    ::syscall(SYS_close, file);
}

void die() {
    ::kill(::getpid(), SIGKILL);
}

void resize(bool grow) {
    struct stat status {};
    const char* path = plan().from.c_str();
    if (::syscall(SYS_newfstatat, AT_FDCWD, path, &status, 0) != 0) return;
    if (::truncate(path, grow ? status.st_size * 3 : status.st_size / 3) != 0) std::abort();
}

struct Verdict {
    int error = 0;
    bool isShort = false;
    bool isEmpty = false;
    bool killsAfter = false;
};

Verdict judge(std::string_view call, const char* path) {
    if (path != nullptr && plan().from == path) plan().isArmed = true;
    if (!plan().isArmed) return {};
    note(call);
    const long count = ++plan().counts[std::string(call)];
    Verdict verdict;
    for (const Fault& fault : plan().faults) {
        if (fault.call != call || count < fault.first || count > fault.last) continue;
        if (fault.action == "kill-before") die();
        if (fault.action == "shrink" || fault.action == "grow") resize(fault.action == "grow");
        verdict.killsAfter |= fault.action == "kill-after";
        verdict.isShort |= fault.action == "short";
        verdict.isEmpty |= fault.action == "zero";
        if (const int error = std::atoi(fault.action.c_str())) verdict.error = error;
    }
    return verdict;
}

template <class Work>
auto carryOut(const Verdict& verdict, Work work) {
    if (verdict.error != 0) {
        if (verdict.killsAfter) die();
        errno = verdict.error;
        return decltype(work())(-1);
    }
    const auto result = work();
    if (verdict.killsAfter) die();
    return result;
}

/// The system's own function under that name.
template <class Function>
Function* own(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

bool isFolder(int file) {
    struct stat status {};
    return own<int(int, struct stat*)>("fstat")(file, &status) == 0 && S_ISDIR(status.st_mode);
}

bool isStandard(int file) {
    return file >= 0 && file <= 2;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    const char* call = (flags & O_TMPFILE) == O_TMPFILE ? "open_tmpfile"
                       : (flags & O_DIRECTORY) != 0     ? "open_folder"
                                                        : "open";
    return carryOut(judge(call, path),
                    [&] { return own<int(const char*, int, ...)>("open")(path, flags, mode); });
}

int access(const char* path, int mode) {
    return carryOut(judge("access", path),
                    [&] { return own<int(const char*, int)>("access")(path, mode); });
}

int stat(const char* path, struct stat* status) {
    return carryOut(judge("stat", path),
                    [&] { return own<int(const char*, struct stat*)>("stat")(path, status); });
}

int lstat(const char* path, struct stat* status) {
    return carryOut(judge("lstat", path),
                    [&] { return own<int(const char*, struct stat*)>("lstat")(path, status); });
}

int fstat(int file, struct stat* status) {
    const auto work = [&] { return own<int(int, struct stat*)>("fstat")(file, status); };
    return isStandard(file) ? work() : carryOut(judge("fstat", nullptr), work);
}

ssize_t readlink(const char* path, char* bytes, size_t size) {
    return carryOut(judge("readlink", path), [&] {
        return own<ssize_t(const char*, char*, size_t)>("readlink")(path, bytes, size);
    });
}

off_t lseek(int file, off_t offset, int whence) {
    return carryOut(judge("lseek", nullptr),
                    [&] { return own<off_t(int, off_t, int)>("lseek")(file, offset, whence); });
}

ssize_t read(int file, void* bytes, size_t size) {
    auto* const function = own<ssize_t(int, void*, size_t)>("read");
    if (isStandard(file)) return function(file, bytes, size);
    const Verdict verdict = judge("read", nullptr);
    const size_t wanted = verdict.isShort ? (size + 1) / 2 : size;
    return carryOut(verdict, [&] { return function(file, bytes, wanted); });
}

ssize_t write(int file, const void* bytes, size_t size) {
    auto* const function = own<ssize_t(int, const void*, size_t)>("write");
    if (isStandard(file)) return function(file, bytes, size);
    const Verdict verdict = judge("write", nullptr);
    if (verdict.isEmpty) return 0;
    const size_t taken = verdict.isShort ? (size + 1) / 2 : size;
    return carryOut(verdict, [&] { return function(file, bytes, taken); });
}

int fsync(int file) {
    return carryOut(judge(isFolder(file) ? "fsync_folder" : "fsync", nullptr),
                    [&] { return own<int(int)>("fsync")(file); });
}

int fchmod(int file, mode_t mode) {
    return carryOut(judge("fchmod", nullptr),
                    [&] { return own<int(int, mode_t)>("fchmod")(file, mode); });
}

int fchown(int file, uid_t owner, gid_t group) {
    return carryOut(judge("fchown", nullptr),
                    [&] { return own<int(int, uid_t, gid_t)>("fchown")(file, owner, group); });
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    return carryOut(judge("linkat", from), [&] {
        return own<int(int, const char*, int, const char*, int)>("linkat")(fromFolder, from,
                                                                           toFolder, to, flags);
    });
}

int rename(const char* from, const char* to) {
    return carryOut(judge("rename", from),
                    [&] { return own<int(const char*, const char*)>("rename")(from, to); });
}

int unlink(const char* path) {
    return carryOut(judge("unlink", path), [&] { return own<int(const char*)>("unlink")(path); });
}

int close(int file) {
    auto* const function = own<int(int)>("close");
    if (isStandard(file)) return function(file);
    const Verdict verdict = judge(isFolder(file) ? "close_folder" : "close", nullptr);
    if (verdict.error != 0) function(file);  // it is gone even when closing fails
    return carryOut(verdict, [&] { return function(file); });
}

}  // extern "C"
