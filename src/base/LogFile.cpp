// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/LogFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <new>

#include "base/Descriptor.h"
#include "base/Links.h"
#include "base/Number.h"
#include "base/UTF8.h"

namespace clipvane {
namespace {

constexpr mode_t newFileMode = 0666;                     // less the process's file mode mask
constexpr int openFlags = O_WRONLY | O_APPEND | O_CREAT  // one call, so that nothing can slip in
                          | O_NOFOLLOW                   // a link that is not the user's own
                          | O_NONBLOCK                   // a FIFO without a reader
                          | O_NOCTTY | O_CLOEXEC;

bool isOwn(const struct stat& status) {
    return status.st_uid == ::geteuid();
}

bool mayLeadToLog(const struct stat& status) {
    return isOwn(status) && (S_ISREG(status.st_mode) || S_ISLNK(status.st_mode));
}

/// Opens the log for appending. A log that exists but is read-only stays as it is: what may not be
/// opened for appending may not be replaced either.
Descriptor openLog(std::filesystem::path place) {
    if (followLinks(place, mayLeadToLog) != 0) return {};
    Descriptor file = openFile(place.c_str(), openFlags, newFileMode);
    // What lies there may have changed since it was looked at.
    struct stat status {};
    if (!file.isOpen()) return {};
    if (uninterrupted([&] { return ::fstat(file.number(), &status); }) != 0) return {};
    if (!S_ISREG(status.st_mode) || !isOwn(status)) return {};
    return file;
}

}  // namespace

std::optional<std::string> logLine(std::chrono::system_clock::time_point time,
                                   std::string_view message) {
    if (validUTF8Prefix(message) != message.size()) return std::nullopt;

    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(std::chrono::floor<std::chrono::seconds>(time - day));
    std::string line = "[";
    appendPadded(line, static_cast<int>(date.year()), 4);
    line += '-';
    appendPadded(line, static_cast<unsigned>(date.month()), 2);
    line += '-';
    appendPadded(line, static_cast<unsigned>(date.day()), 2);
    line += ' ';
    appendPadded(line, clock.hours().count(), 2);
    line += ':';
    appendPadded(line, clock.minutes().count(), 2);
    line += ':';
    appendPadded(line, clock.seconds().count(), 2);
    line += " +0000] ";
    line += message;
    line += '\n';
    return line;
}

void appendLogLine(const std::filesystem::path& path, std::string_view line) {
    const Descriptor file = openLog(path);
    if (file.isOpen()) static_cast<void>(writeAll(file.number(), line));
}

void writeLogLine(const std::filesystem::path& path, std::chrono::system_clock::time_point time,
                  std::string_view message) try {
    if (const auto line = logLine(time, message)) appendLogLine(path, *line);
} catch (const std::bad_alloc&) {
}

}  // namespace clipvane
