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

constexpr std::size_t largestTransfer = 0x7ffff000;  // what the kernel moves in one call
constexpr std::size_t firstPiece = 65536;

/// Waits until the descriptor is ready for `event`; true when there is reason to try again.
bool waitFor(int descriptor, short event) {
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

Result<std::string> readAll(int descriptor) {
    std::string bytes;
    std::size_t used = 0;
    while (true) {
        if (used == bytes.size()) bytes.resize(std::max(2 * used, firstPiece));
        const std::size_t count = std::min(bytes.size() - used, largestTransfer);
        const ssize_t got =
            uninterrupted([&] { return ::read(descriptor, bytes.data() + used, count); });
        if (got < 0) {
            if (waitFor(descriptor, POLLIN)) continue;
            return tl::unexpected(systemError("read", errno));
        }
        if (got == 0) break;
        used += static_cast<std::size_t>(got);
    }
    bytes.resize(used);
    return bytes;
}

int writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t count = std::min(bytes.size(), largestTransfer);
        const ssize_t put = uninterrupted([&] { return ::write(descriptor, bytes.data(), count); });
        if (put < 0) {
            if (waitFor(descriptor, POLLOUT)) continue;
            const int code = errno;
            if (code == EPIPE) endByBrokenPipe();
            return code;
        }
        if (put == 0) return EIO;  // nothing was taken, and no reason given
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
    return 0;
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
