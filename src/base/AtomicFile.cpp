#include "base/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>

#include "base/UUID.h"

namespace clipvane {
namespace {

constexpr std::size_t largestWrite = 0x7ffff000;  // what the kernel moves in one call
constexpr int mostLinks = 40;                     // the kernel's own limit in following links
constexpr mode_t newFileMode = 0666;              // less the process's file mode mask
constexpr mode_t permissionBits = 07777;

/// The place that `path` leads to through its links; a dangling link leads to a place without a
/// file. Zero or an errno value.
int followLinks(std::filesystem::path& path) {
    for (int followed = 0; followed <= mostLinks; ++followed) {
        struct stat status {};
        if (::lstat(path.c_str(), &status) != 0) return errno == ENOENT ? 0 : errno;
        if (!S_ISLNK(status.st_mode)) return 0;
        std::error_code error;
        const std::filesystem::path target = std::filesystem::read_symlink(path, error);
        if (error) return error.value();
        path = path.parent_path() / target;  // an absolute target replaces the folder
    }
    return ELOOP;
}

/// The permissions of the regular file at `place`; nothing when nothing is there. Otherwise the
/// error for `destination`, since nothing but a regular file is ever replaced.
Result<std::optional<mode_t>> replacedMode(const std::filesystem::path& place,
                                           const std::filesystem::path& destination) {
    const auto failed = [&](int code) {
        return tl::unexpected(fileError("written", destination, code));
    };
    struct stat status {};
    if (::lstat(place.c_str(), &status) != 0) {
        if (errno == ENOENT) return std::nullopt;
        return failed(errno);
    }
    if (S_ISDIR(status.st_mode)) return failed(EISDIR);
    if (!S_ISREG(status.st_mode)) {
        return tl::unexpected(Error{"POSIX", EINVAL,
                                    "The file \"" + displayName(destination) +
                                        "\" could not be written: Not a regular file."});
    }
    return status.st_mode & permissionBits;
}

std::string procLink(int descriptor) {
    return "/proc/self/fd/" + std::to_string(descriptor);
}

}  // namespace

AtomicFile::AtomicFile(std::filesystem::path destination, std::filesystem::path place)
    : destination(std::move(destination)), place(std::move(place)) {}

AtomicFile::AtomicFile(AtomicFile&& other) noexcept
    : destination(std::move(other.destination)),
      place(std::move(other.place)),
      file(std::move(other.file)),
      temporary(std::move(other.temporary)) {
    other.temporary.clear();
}

AtomicFile::~AtomicFile() {
    if (!temporary.empty()) ::unlink(temporary.c_str());
}

tl::unexpected<Error> AtomicFile::failed(int code) const {
    return tl::unexpected(fileError("written", destination, code));
}

Result<AtomicFile> AtomicFile::create(const std::filesystem::path& destination) {
    std::filesystem::path place = destination;
    const int linkCode = followLinks(place);
    AtomicFile file(destination, std::move(place));
    if (linkCode != 0) return file.failed(linkCode);

    const auto replaced = replacedMode(file.place, destination);
    if (!replaced) return tl::unexpected(replaced.error());
    // Whoever may not read the old content may not read the new one while it is written either.
    if (const int code = file.open(replaced->value_or(newFileMode) & newFileMode)) {
        return file.failed(code);
    }
    return file;
}

/// Opens a file without a name, which vanishes by itself if the process is killed, or a hidden one
/// beside the destination where the system cannot do the first. Zero or an errno value.
int AtomicFile::open(mode_t mode) {
    std::filesystem::path folder = place.parent_path();
    if (folder.empty()) folder = ".";
    file = openFile(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
    // Giving it a name later needs /proc.
    if (file.isOpen() && ::access(procLink(file.number()).c_str(), F_OK) == 0) return 0;

    UUIDGenerator generator;
    const std::filesystem::path name = folder / (".clipvane-" + generator.next().text());
    file = openFile(name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
    if (!file.isOpen()) return errno;
    temporary = name;
    return 0;
}

Result<void> AtomicFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put =
            ::write(file.number(), bytes.data(), std::min(bytes.size(), largestWrite));
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) return failed(errno);
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
    return {};
}

Result<void> AtomicFile::commit() {
    // Asked again: somebody may have put something else there meanwhile.
    const auto replaced = replacedMode(place, destination);
    if (!replaced) return tl::unexpected(replaced.error());
    // Some file systems have no permissions to set; the export does not fail for that.
    if (*replaced) static_cast<void>(::fchmod(file.number(), **replaced));

    while (::fsync(file.number()) != 0) {
        if (errno != EINTR) return failed(errno);
    }
    if (temporary.empty() && !*replaced) {
        const int code = linkAt(place);
        if (code == 0) return {};
        if (code != EEXIST) return failed(code);  // EEXIST: somebody else was faster; replace it
    }
    if (temporary.empty()) {
        if (const int code = linkTemporary()) return failed(code);
    }
    if (const int code = file.close()) return failed(code);
    if (::rename(temporary.c_str(), place.c_str()) != 0) return failed(errno);
    temporary.clear();
    return {};
}

int AtomicFile::linkAt(const std::filesystem::path& name) {
    const std::string content = procLink(file.number());
    return ::linkat(AT_FDCWD, content.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0
               ? 0
               : errno;
}

/// A file without a name cannot replace another one; it needs a name for the moment before.
int AtomicFile::linkTemporary() {
    UUIDGenerator generator;
    const std::filesystem::path name =
        place.parent_path() / (".clipvane-" + generator.next().text());
    if (const int code = linkAt(name)) return code;
    temporary = name;
    return 0;
}

Result<void> writeFileAtomically(const std::filesystem::path& destination, std::string_view text) {
    auto file = AtomicFile::create(destination);
    if (!file) return tl::unexpected(std::move(file.error()));
    if (auto written = file->write(text); !written) return written;
    return file->commit();
}

}  // namespace clipvane
