// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace clipvane {

/// Makes a system call, again as long as a signal interrupts it. Gives its result.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

/// Owns an open file descriptor and closes it at the end of its life.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : descriptor(number) {}
    Descriptor(Descriptor&& other) noexcept : descriptor(std::exchange(other.descriptor, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(descriptor, other.descriptor);
        return *this;
    }
    ~Descriptor() {
        if (isOpen()) ::close(descriptor);
    }

    bool isOpen() const { return descriptor >= 0; }
    int number() const { return descriptor; }

    /// Closes now, and tells the errno value that closing gave, or zero.
    int close() {
        // The descriptor is gone even when the call was interrupted.
        const int result = ::close(std::exchange(descriptor, -1));
        return result == 0 || errno == EINTR ? 0 : errno;
    }

  private:
    int descriptor = -1;
};

/// Opens as open(2) does, again when a signal interrupted it. Not open, with errno set, on failure.
inline Descriptor openFile(const char* path, int flags, mode_t mode = 0) {
    return Descriptor(uninterrupted([&] { return ::open(path, flags, mode); }));
}

/// Writes all of `bytes`. Where that fails, `retry` tells, with errno set, whether to go on. Zero
/// or an errno value.
inline int writeAll(int descriptor, std::string_view bytes,
                    bool (*retry)(int descriptor) = nullptr) {
    while (!bytes.empty()) {
        const ssize_t put =
            uninterrupted([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
        if (put < 0 && retry != nullptr && retry(descriptor)) continue;
        if (put < 0) return errno;
        if (put == 0) return EIO;  // nothing was taken, and no reason given: no use in going on
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
    return 0;
}

}  // namespace clipvane
