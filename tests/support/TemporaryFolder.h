#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace clipvane::test {

/// A folder of the test's own, gone with it. Everybody may enter it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name =
            (std::filesystem::temp_directory_path() / "clipvane-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) ADD_FAILURE() << "no temporary folder";
        folder = name;
        std::filesystem::permissions(folder, std::filesystem::perms(0755));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::filesystem::path operator/(std::string_view name) const { return folder / name; }
    const std::filesystem::path& path() const { return folder; }

    /// The number of entries, hidden ones included.
    std::ptrdiff_t count() const {
        return std::distance(std::filesystem::directory_iterator(folder), {});
    }

  private:
    std::filesystem::path folder;
};

inline std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void writeContent(const std::filesystem::path& path, std::string_view content) {
    std::ofstream(path, std::ios::binary) << content;
}

}  // namespace clipvane::test
