#pragma once

#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace clipvane {

/// A new, empty folder that everybody may enter; it goes away, with all that is in it, at the end
/// of its life.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = std::filesystem::temp_directory_path() / "clipvane-test-XXXXXX";
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        folder = name;
        std::filesystem::permissions(folder, std::filesystem::perms{0777});
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::permissions(folder, std::filesystem::perms{0777}, ignored);
        std::filesystem::remove_all(folder, ignored);
    }

    const std::filesystem::path& path() const { return folder; }
    std::filesystem::path operator/(std::string_view name) const { return folder / name; }

    /// The names of all that is in it, hidden ones too, sorted.
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

  private:
    std::filesystem::path folder;
};

}  // namespace clipvane
