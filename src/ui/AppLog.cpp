#include "ui/AppLog.h"

#include <chrono>

#include "ui/LogFile.h"

namespace clipvane {

const std::filesystem::path& AppLog::url() {
    static const std::filesystem::path place = "/tmp/clipvane-native.log";
    return place;
}

void AppLog::write(std::string_view message) {
    writeLogLine(url(), std::chrono::system_clock::now(), message);
}

}  // namespace clipvane
