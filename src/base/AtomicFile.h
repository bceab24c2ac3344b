// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>

#include <clipvane/Error.h>
#include "base/Descriptor.h"

namespace clipvane {

/// Writes a file so that its place holds the old content or the new one, whole, and never anything
/// between.
///
/// Links to the destination are followed, and only a regular file is ever replaced; it keeps its
/// permissions and its group, where the system lets them be kept. The content is on the disk before
/// it takes its place. Until `commit` succeeds nothing is visible at the destination, and what was
/// written is gone with this object.
///
///     auto file = AtomicFile::create(path);
///     if (!file) return tl::unexpected(file.error());
///     if (auto written = file->write(text); !written) return written;
///     return file->commit();
class AtomicFile {
  public:
    /// What becomes of a file that is at the destination already.
    enum class Existing {
        replace,
        keep,  ///< `create` fails, or `commit` if the file came later
    };

    /// This, `write` and `commit` fail with the system's error about `destination`.
    static Result<AtomicFile> create(const std::filesystem::path& destination,
                                     Existing existing = Existing::replace);

    AtomicFile(AtomicFile&& other) noexcept;
    AtomicFile& operator=(AtomicFile&&) = delete;
    ~AtomicFile();

    Result<void> write(std::string_view bytes);

    /// Puts the content in its place. Afterwards only the destructor may be called.
    Result<void> commit();

  private:
    AtomicFile(std::filesystem::path destination, std::filesystem::path place, Existing existing);

    int open(mode_t mode);
    int openNamed(mode_t mode);
    int moveToNamed();
    Result<void> takePlace();
    int rename() const;
    int linkAt(const std::filesystem::path& name) const;
    std::filesystem::path folder() const;
    std::filesystem::path hiddenName() const;
    tl::unexpected<Error> failed(int code) const;

    std::filesystem::path destination;  ///< as the caller named it
    std::filesystem::path place;        ///< the same with its links resolved
    Existing existing;
    Descriptor file;
    std::filesystem::path temporary;  ///< the content's present name; empty while it has none
};

}  // namespace clipvane
