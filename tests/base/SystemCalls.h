// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>

namespace clipvane::test {

/// The system calls of the code under test that a test can make fail. Opening a file without a name
/// (O_TMPFILE) counts apart from the other ways of opening.
enum class SystemCall {
    openWithoutName,
    open,
    access,
    stat,
    lstat,
    fstat,
    lseek,
    read,
    write,
    fsync,
    fchmod,
    fchown,
    linkat,
    rename,
    renameat2,
    unlink,
    close,
};

/// For its life, or for the given number of calls, `call` fails with `error` without doing its
/// work; the first `spared` calls are left alone.
class Refusal {
  public:
    static constexpr int always = -1;

    Refusal(SystemCall call, int error, int times = always, int spared = 0);
    Refusal(const Refusal&) = delete;
    Refusal& operator=(const Refusal&) = delete;
    ~Refusal();

    /// How often the call was refused so far.
    int count() const;

  private:
    SystemCall call;
};

/// For its life, a write takes at most `most` bytes.
class ShortWrites {
  public:
    explicit ShortWrites(std::size_t most);
    ShortWrites(const ShortWrites&) = delete;
    ShortWrites& operator=(const ShortWrites&) = delete;
    ~ShortWrites();
};

/// For its life, syncing does not wait for the disk.
class WithoutWaiting {
  public:
    WithoutWaiting();
    WithoutWaiting(const WithoutWaiting&) = delete;
    WithoutWaiting& operator=(const WithoutWaiting&) = delete;
    ~WithoutWaiting();
};

/// For its life, `action` runs once, just before the next `call` does its work.
class Interruption {
  public:
    Interruption(SystemCall call, std::function<void()> action);
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption();

  private:
    SystemCall call;
};

}  // namespace clipvane::test
