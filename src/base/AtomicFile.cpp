// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <optional>

#include <clipvane/UUID.h>
#include "base/Links.h"

namespace clipvane {
namespace {

constexpr std::size_t copiedAtOnce = 0x10000;
constexpr int mostTries = 10;         // at a place that others take and leave all the time
constexpr mode_t newFileMode = 0666;  // less the process's file mode mask
constexpr mode_t ownerOnly = 0600;
constexpr mode_t permissionBits = 07777;

/// The regular file at `place`; nothing when nothing is there. Otherwise the error for
/// `destination`, since nothing but a regular file is ever replaced.
Result<std::optional<struct stat>> replacedFile(const std::filesystem::path& place,
                                                const std::filesystem::path& destination) {
    struct stat status {};
    if (const int code = lookAt(place, status)) {
        if (code == ENOENT) return std::nullopt;
        return tl::unexpected(fileError("written", destination, code));
    }
    if (S_ISDIR(status.st_mode)) {
        return tl::unexpected(fileError("written", destination, EISDIR));
    }
    if (!S_ISREG(status.st_mode)) {
        return tl::unexpected(Error{"POSIX", EINVAL,
                                    "The file \"" + displayName(destination) +
                                        "\" could not be written: Not a regular file."});
    }
    return status;
}

bool hasGroup(int file, gid_t group) {
    struct stat status {};
    return uninterrupted([&] { return ::fstat(file, &status); }) == 0 && status.st_gid == group;
}

/// Gives the open file the group and the permissions of the one that it is to replace, as far as
/// the system lets it: not every file system has them, and the export does not fail for that.
void keepPermissions(int file, const struct stat& replaced) {
    constexpr auto sameOwner = static_cast<uid_t>(-1);
    mode_t mode = replaced.st_mode & permissionBits;
    const auto keepGroup = [&] { return ::fchown(file, sameOwner, replaced.st_gid); };
    if (uninterrupted(keepGroup) != 0 && !hasGroup(file, replaced.st_gid)) {
        // Another group may do no more than everybody.
        mode &= ~static_cast<mode_t>(S_ISGID | S_IRWXG) | (mode & S_IRWXO) << 3;
    }
    // What somebody else's program may do in his name is not to be done in the new owner's.
    if (replaced.st_uid != ::geteuid()) mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    static_cast<void>(uninterrupted([&] { return ::fchmod(file, mode); }));
}

/// Writes all that the file `from` holds to `to`. Zero or an errno value.
int copyAll(int from, int to) {
    if (uninterrupted([&] { return ::lseek(from, 0, SEEK_SET); }) != 0) return errno;
    std::array<char, copiedAtOnce> bytes;
    while (true) {
        const ssize_t got = uninterrupted([&] { return ::read(from, bytes.data(), bytes.size()); });
        if (got < 0) return errno;
        if (got == 0) return 0;
        if (const int code = writeAll(to, {bytes.data(), static_cast<std::size_t>(got)})) {
            return code;
        }
    }
}

/// Makes the new name in the folder outlast a power failure, where the system can.
void syncFolder(const std::filesystem::path& folder) {
    const Descriptor open = openFile(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (!open.isOpen()) return;
    static_cast<void>(uninterrupted([&] { return ::fsync(open.number()); }));
}

std::string procLink(int descriptor) {
    return "/proc/self/fd/" + std::to_string(descriptor);
}

}  // namespace

AtomicFile::AtomicFile(std::filesystem::path destination, std::filesystem::path place,
                       Existing existing)
    : destination(std::move(destination)), place(std::move(place)), existing(existing) {}

AtomicFile::AtomicFile(AtomicFile&& other) noexcept
    : destination(std::move(other.destination)),
      place(std::move(other.place)),
      existing(other.existing),
      file(std::move(other.file)),
      temporary(std::move(other.temporary)) {
    other.temporary.clear();
}

AtomicFile::~AtomicFile() {
    if (temporary.empty()) return;
    static_cast<void>(uninterrupted([&] { return ::unlink(temporary.c_str()); }));
}

tl::unexpected<Error> AtomicFile::failed(int code) const {
    return tl::unexpected(fileError("written", destination, code));
}

Result<AtomicFile> AtomicFile::create(const std::filesystem::path& destination, Existing existing) {
    std::filesystem::path place = destination;
    const int linkCode = followLinks(place);
    AtomicFile file(destination, std::move(place), existing);
    if (linkCode != 0) return file.failed(linkCode);

    const auto replaced = replacedFile(file.place, destination);
    if (!replaced) return tl::unexpected(replaced.error());
    if (*replaced && existing == Existing::keep) return file.failed(EEXIST);
    // Whoever may not read the old content may not read the new one while it is written either; and
    // the group may be another one until it is known better.
    const mode_t mode = *replaced ? (*replaced)->st_mode & ownerOnly : newFileMode;
    if (const int code = file.open(mode)) return file.failed(code);
    return file;
}

std::filesystem::path AtomicFile::folder() const {
    return place.has_parent_path() ? place.parent_path() : ".";
}

std::filesystem::path AtomicFile::hiddenName() const {
    UUIDGenerator generator;
    return folder() / (".clipvane-" + generator.next().text());
}

/// Opens a file without a name, which vanishes by itself if the process is killed, or a hidden one
/// beside the destination where the system cannot do the first. Zero or an errno value.
int AtomicFile::open(mode_t mode) {
    file = openFile(folder().c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode);
    // Giving it a name later needs /proc.
    const auto hasLink = [&] { return ::access(procLink(file.number()).c_str(), F_OK); };
    if (file.isOpen() && uninterrupted(hasLink) == 0) return 0;
    file = {};
    return openNamed(mode);
}

int AtomicFile::openNamed(mode_t mode) {
    std::filesystem::path name = hiddenName();
    file = openFile(name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
    if (!file.isOpen()) return errno;
    temporary = std::move(name);
    return 0;
}

/// Puts the content of the file without a name into a hidden one. Zero or an errno value.
int AtomicFile::moveToNamed() {
    const Descriptor nameless = std::move(file);
    struct stat status {};
    if (uninterrupted([&] { return ::fstat(nameless.number(), &status); }) != 0) return errno;
    if (const int code = openNamed(status.st_mode & newFileMode)) return code;
    return copyAll(nameless.number(), file.number());
}

Result<void> AtomicFile::write(std::string_view bytes) {
    if (const int code = writeAll(file.number(), bytes)) return failed(code);
    return {};
}

Result<void> AtomicFile::commit() {
    const std::filesystem::path above = folder();  // asked for while it may still fail
    if (auto placed = takePlace(); !placed) return placed;
    syncFolder(above);  // whether that fails or not: the content is in its place
    return {};
}

Result<void> AtomicFile::takePlace() {
    for (int tries = 0; tries < mostTries; ++tries) {
        // Asked again: somebody may have put something else there meanwhile.
        const auto replaced = replacedFile(place, destination);
        if (!replaced) return tl::unexpected(replaced.error());
        if (*replaced && existing == Existing::keep) return failed(EEXIST);
        if (*replaced) keepPermissions(file.number(), **replaced);
        if (uninterrupted([&] { return ::fsync(file.number()); }) != 0) return failed(errno);

        if (temporary.empty()) {
            // A file without a name cannot replace another one; it needs one for the moment before.
            std::filesystem::path name = *replaced ? hiddenName() : place;
            const int code = linkAt(name);
            if (code == EEXIST) continue;
            if (code != 0) {  // some file systems have no second names, so they cannot give a first
                if (const int other = moveToNamed()) return failed(other);
                continue;
            }
            if (!*replaced) return {};
            temporary = std::move(name);
        }
        if (const int code = file.close()) return failed(code);
        if (const int code = rename()) return failed(code);
        temporary.clear();
        return {};
    }
    return failed(EEXIST);
}

/// Gives the content its place. Zero or an errno value.
int AtomicFile::rename() const {
    if (existing == Existing::replace) {
        const auto replace = [&] { return ::rename(temporary.c_str(), place.c_str()); };
        return uninterrupted(replace) == 0 ? 0 : errno;
    }
    const auto keep = [&] {
        return ::renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, place.c_str(), RENAME_NOREPLACE);
    };
    if (uninterrupted(keep) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    // Not every file system can refuse to replace in renaming; in giving a second name, all can.
    const auto link = [&] { return ::link(temporary.c_str(), place.c_str()); };
    if (uninterrupted(link) != 0) return errno;
    // Whether the first name goes or not: the content is in its place.
    static_cast<void>(uninterrupted([&] { return ::unlink(temporary.c_str()); }));
    return 0;
}

int AtomicFile::linkAt(const std::filesystem::path& name) const {
    const std::string content = procLink(file.number());
    const auto link = [&] {
        return ::linkat(AT_FDCWD, content.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW);
    };
    return uninterrupted(link) == 0 ? 0 : errno;
}

}  // namespace clipvane
