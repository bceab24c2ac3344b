// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace clipvane::cli {
namespace {

constexpr std::size_t usualColumns = 80;  // of a terminal that does not know its width

std::string_view environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

}  // namespace

std::optional<std::size_t> terminalColumns(int descriptor) {
    if (::isatty(descriptor) == 0) return std::nullopt;
    winsize size{};
    if (::ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return usualColumns;
    return std::max<std::size_t>(size.ws_col, 2);
}

bool mayDecorate(int descriptor) {
    return ::isatty(descriptor) != 0 && environment("NO_COLOR").empty() &&
           environment("TERM") != "dumb";
}

}  // namespace clipvane::cli
