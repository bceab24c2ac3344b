// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Descriptors.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include "base/Descriptor.h"
#include "base/Number.h"
#include "cli/Reason.h"

namespace clipvane::cli {
namespace {

constexpr std::size_t usualRoom = 65536;

/// Where the stream itself would not wait, waits until it is ready for `event`; true when there is
/// reason to try again.
template <short event>
bool waitFor(int descriptor) {
    if (errno != EAGAIN) return false;
    pollfd waiting{descriptor, event, 0};
    return uninterrupted([&] { return ::poll(&waiting, 1, -1); }) > 0;
}

bool isOpen(int descriptor) {
    return ::fcntl(descriptor, F_GETFD) != -1 || errno != EBADF;
}

/// As SIGPIPE does, also where the parent ignores it.
void endByBrokenPipe() {
    sigset_t pipe;
    sigemptyset(&pipe);
    sigaddset(&pipe, SIGPIPE);
    std::signal(SIGPIPE, SIG_DFL);
    ::sigprocmask(SIG_UNBLOCK, &pipe, nullptr);
    static_cast<void>(std::raise(SIGPIPE));
}

}  // namespace

std::optional<int> namedDescriptor(const std::filesystem::path& path) {
    constexpr std::array<std::string_view, 3> standard{"/dev/stdin", "/dev/stdout", "/dev/stderr"};
    const std::string_view name = path.native();
    const auto found = std::ranges::find(standard, name);
    if (found != standard.end()) return static_cast<int>(found - standard.begin());
    for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
        if (!name.starts_with(folder)) continue;
        const std::string_view digits = name.substr(folder.size());
        if (digits.find_first_not_of("0123456789") != std::string_view::npos) continue;
        const auto number = parseInteger(digits);
        if (number && *number <= 0x7fffffff) return static_cast<int>(*number);
    }
    return std::nullopt;
}

Result<FileBytes> readStream(int descriptor) {
    return readToEnd(descriptor, usualRoom, waitFor<POLLIN>).map_error([](int code) {
        return systemError("read", code);
    });
}

int writeStream(int descriptor, std::string_view bytes) {
    const int code = writeAll(descriptor, bytes, waitFor<POLLOUT>);
    if (code == EPIPE) endByBrokenPipe();
    return code;
}

void prepareStandardFiles() {
    // A descriptor opened for the other direction fails as a closed one does, with EBADF. What is
    // said on a standard error that is closed is said to nobody.
    constexpr std::array ways{O_WRONLY, O_RDONLY, O_WRONLY};
    for (int descriptor = 0; descriptor < 3; ++descriptor) {
        if (isOpen(descriptor)) continue;
        // The lowest free number is this one. Where it cannot be had, neither can any other file.
        static_cast<void>(::open("/dev/null", ways[static_cast<std::size_t>(descriptor)]));
    }
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace clipvane::cli
