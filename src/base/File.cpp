// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/File.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <new>

#include "base/Descriptor.h"

namespace clipvane {
namespace {

/// Tells the kernel that the `count` bytes at `storage` will all be written soon, so that it may
/// hand them out in large pages. First touching memory is what reading a large timeline costs most;
/// only a hint, and one that small storage does not need.
void adviseHugePages(void* storage, std::size_t count) {
    constexpr std::uintptr_t page = 4096;
    constexpr std::size_t worthwhile = std::size_t{4} << 20;
    if (count < worthwhile) return;
    const auto begin = (reinterpret_cast<std::uintptr_t>(storage) + page - 1) & ~(page - 1);
    const auto end = (reinterpret_cast<std::uintptr_t>(storage) + count) & ~(page - 1);
    ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
}

/// Bytes read so far, in storage that is not cleared first: it is all about to be written.
class GrowingBytes {
  public:
    explicit GrowingBytes(std::size_t capacity)
        : storage(std::make_unique_for_overwrite<char[]>(capacity)), capacity(capacity) {
        adviseHugePages(storage.get(), capacity);
    }

    char* free() const { return storage.get() + used; }
    std::size_t freeCount() const { return capacity - used; }
    void use(std::size_t count) { used += count; }

    void grow() {
        GrowingBytes larger(std::max<std::size_t>(capacity * 2, 65536));
        std::memcpy(larger.storage.get(), storage.get(), used);
        larger.used = used;
        *this = std::move(larger);
    }

    FileBytes take() { return {std::move(storage), used}; }

  private:
    std::unique_ptr<char[]> storage;
    std::size_t capacity;
    std::size_t used = 0;
};

/// Refuses all but a regular file.
Result<void> checkKind(const struct stat& status, const std::filesystem::path& path) {
    if (S_ISREG(status.st_mode)) return {};
    if (S_ISDIR(status.st_mode)) return tl::unexpected(fileError("read", path, EISDIR));
    return tl::unexpected(
        Error{"POSIX", EINVAL,
              "The file \"" + displayName(path) + "\" could not be read: Not a regular file."});
}

}  // namespace

tl::expected<FileBytes, int> readToEnd(int descriptor, std::size_t expected,
                                       bool (*retry)(int descriptor)) {
    GrowingBytes bytes(expected);
    while (true) {
        if (bytes.freeCount() == 0) bytes.grow();
        const ssize_t got =
            uninterrupted([&] { return ::read(descriptor, bytes.free(), bytes.freeCount()); });
        if (got < 0 && retry != nullptr && retry(descriptor)) continue;
        if (got < 0) return tl::unexpected(errno);
        if (got == 0) return bytes.take();
        bytes.use(static_cast<std::size_t>(got));
    }
}

Result<FileBytes> readFile(const std::filesystem::path& path) try {
    const auto failed = [&](int code) { return tl::unexpected(fileError("read", path, code)); };

    // Looked at before it is opened: a device may act on being opened alone.
    struct stat status {};
    if (uninterrupted([&] { return ::stat(path.c_str(), &status); }) != 0) return failed(errno);
    if (auto checked = checkKind(status, path); !checked) return tl::unexpected(checked.error());

    // And afterwards, should somebody have been faster; without O_NONBLOCK, opening a FIFO would
    // wait for somebody to write into it.
    const Descriptor file = openFile(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (!file.isOpen()) return failed(errno);
    if (uninterrupted([&] { return ::fstat(file.number(), &status); }) != 0) return failed(errno);
    if (auto checked = checkKind(status, path); !checked) return tl::unexpected(checked.error());

    // One byte more than the size lets the last read report the end instead of growing first.
    auto bytes = readToEnd(file.number(), static_cast<std::size_t>(status.st_size) + 1);
    if (!bytes) return failed(bytes.error());
    return std::move(*bytes);
} catch (const std::bad_alloc&) {
    return tl::unexpected(fileError("read", path, ENOMEM));
}

}  // namespace clipvane
