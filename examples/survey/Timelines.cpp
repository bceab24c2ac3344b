// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "Timelines.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

#include "base/Characters.h"
#include "base/UTF8.h"

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 5> extensions{".edl", ".txt", ".xml", ".fcpxml", ".xmeml"};

bool isTimeline(const fs::path& path) {
    std::string extension = path.extension();
    std::ranges::transform(extension, extension.begin(), clipvane::asciiLower);
    return std::ranges::find(extensions, extension) != extensions.end();
}

class Search {
  public:
    explicit Search(const Complain& complain) : complain(complain) {}

    void lookAt(const fs::path& place) {
        std::error_code error;
        const fs::file_status status = fs::status(place, error);
        if (!fs::exists(status)) {
            complain(shown(place) + ": " + error.message());
        } else if (fs::is_directory(status)) {
            lookInto(place);
        } else if (isTimeline(place)) {
            found.push_back(place);
        } else {
            complain(shown(place) +
                     ": not a timeline: its name ends in none of .edl, .txt, .xml, "
                     ".fcpxml and .xmeml");
        }
    }

    std::vector<fs::path> found;

  private:
    void lookInto(const fs::path& folder) {
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            std::error_code unknown;  // what cannot be looked at will say so when it is read
            if (entry->is_directory(unknown) && !entry->is_symlink(unknown)) {
                lookInto(entry->path());
            } else if (isTimeline(entry->path())) {
                found.push_back(entry->path());
            }
        }
        if (error) complain(shown(folder) + ": " + error.message());
    }

    const Complain& complain;
};

}  // namespace

std::vector<fs::path> timelinesAt(const std::vector<fs::path>& places, const Complain& complain) {
    Search search(complain);
    for (const fs::path& place : places) search.lookAt(place);
    std::ranges::sort(search.found);
    return search.found;
}

std::string shown(const fs::path& path) {
    std::string text = clipvane::replaceInvalidUTF8(path.native());
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
    return text;
}
