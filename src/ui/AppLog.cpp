// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/AppLog.h"

#include <chrono>

#include "base/LogFile.h"

namespace clipvane {

const std::filesystem::path& AppLog::url() {
    static const std::filesystem::path place = "/tmp/clipvane-native.log";
    return place;
}

void AppLog::write(std::string_view message) {
    writeLogLine(url(), std::chrono::system_clock::now(), message);
}

}  // namespace clipvane
