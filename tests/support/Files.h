#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace clipvane {

inline void putFile(const std::filesystem::path& path, std::string_view content) {
    std::ofstream stream(path, std::ios::binary);
    stream.exceptions(std::ios::failbit | std::ios::badbit);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.flush();
}

inline std::string contentOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    stream.exceptions(std::ios::badbit | std::ios::failbit);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// The permission bits of the file at `path`, links followed.
inline unsigned modeOf(const std::filesystem::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0U;
}

}  // namespace clipvane
