// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/TimelineWalk.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>
#include <utility>

#include "cli/Reason.h"

namespace clipvane::cli {
namespace {

namespace fs = std::filesystem;

class Walk {
  public:
    Walk(const std::optional<FileIdentity>& output, Session& session) : session(session) {
        if (output) files.insert(*output);
    }

    void take(const Input& input) {
        if (!input.isStream() && isFolder(input.name()) && !isBundleName(input.fileName())) {
            takeFolder(input.name());
        } else if (isNew(input)) {
            found.push_back({input, true});
        }
    }

    std::vector<WalkedTimeline> found;

  private:
    void takeFolder(const fs::path& folder) {
        std::vector<fs::path> paths;
        lookInto(folder, paths);
        std::ranges::sort(paths, {}, &fs::path::native);
        for (const fs::path& path : paths) {
            Input input(path.native());
            if (isNew(input)) found.push_back({std::move(input), false});
        }
        if (paths.empty() && !session.hasFailed()) {
            session.note(folder.native() + " holds no timelines");
        }
    }

    void lookInto(const fs::path& folder, std::vector<fs::path>& paths) {
        const auto identity = folderIdentity(folder);
        if (identity && !folders.insert(*identity).second) return;  // a link may lead back
        std::vector<fs::path> entries;
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            entries.push_back(entry->path());
        }
        if (error) session.fail(folder.native(), systemError("read", error.value()));
        // Which of two ways into a folder is taken must not depend on the disk.
        std::ranges::sort(entries, {}, &fs::path::native);
        for (const fs::path& entry : entries) {
            if (isFolder(entry) && !isBundleName(entry)) {
                lookInto(entry, paths);
            } else if (formatOf(entry)) {
                paths.push_back(entry);
            }
        }
    }

    bool isNew(const Input& input) {
        const auto identity = input.identity();
        return !identity || files.insert(*identity).second;
    }

    static std::optional<FileIdentity> folderIdentity(const fs::path& folder) {
        struct stat status {};
        if (::stat(folder.c_str(), &status) != 0) return std::nullopt;
        return FileIdentity{status.st_dev, status.st_ino};
    }

    Session& session;
    std::set<FileIdentity> files;
    std::set<FileIdentity> folders;
};

}  // namespace

std::vector<WalkedTimeline> walkTimelines(const std::vector<Input>& inputs,
                                          const std::optional<FileIdentity>& output,
                                          Session& session) {
    Walk walk(output, session);
    for (const Input& input : inputs) walk.take(input);
    return std::move(walk.found);
}

}  // namespace clipvane::cli
