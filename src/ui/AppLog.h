#pragma once

#include <filesystem>
#include <string_view>

namespace clipvane {

/// The program's diagnostic log: a text file to which start-up and the opening of a timeline append
/// a line each, and which nothing reads.
class AppLog {
  public:
    AppLog() = delete;

    /// The log's fixed place, which the users' documents name.
    static const std::filesystem::path& url();

    /// Appends one line with the time and the message. Never fails visibly.
    static void write(std::string_view message);
};

}  // namespace clipvane
