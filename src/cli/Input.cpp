// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Input.h"

#include <system_error>
#include <utility>

#include "cli/Descriptors.h"
#include "cli/Impossible.h"
#include "cli/Reason.h"

namespace clipvane::cli {
namespace {

std::string withoutSlashesBehind(std::string name) {
    while (name.size() > 1 && name.ends_with('/')) name.pop_back();
    return name;
}

/// The file to read: of a folder that is one timeline, the document in it.
std::filesystem::path documentOf(const std::filesystem::path& place) {
    return isBundleName(place) && isFolder(place) ? place / "Info.fcpxml" : place;
}

}  // namespace

Input::Input(std::string name)
    : given(std::move(name)),
      place(withoutSlashesBehind(given)),
      stream(given == "-" ? 0 : namedDescriptor(given)) {}

std::optional<TimelineFormat> Input::format() const {
    if (isStream()) return std::nullopt;
    return formatOf(place);
}

std::filesystem::path Input::fileName() const {
    return place.filename();
}

std::filesystem::path Input::stem() const {
    return place.stem();
}

std::optional<FileIdentity> Input::identity() const {
    return stream ? identityOf(*stream) : identityOf(documentOf(place));
}

Result<FileBytes> Input::read() const {
    if (stream) return possibly([&] { return readStream(*stream); });
    auto bytes = readFile(documentOf(place));
    if (!bytes) return tl::unexpected(reworded(bytes.error(), "read"));
    return std::move(*bytes);
}

bool isFolder(const std::filesystem::path& path) {
    std::error_code unknown;
    return std::filesystem::is_directory(path, unknown);
}

std::vector<Input> inputsNamed(const std::vector<std::string>& names) {
    std::vector<Input> inputs;
    inputs.reserve(names.size());
    for (const std::string& name : names) inputs.emplace_back(name);
    return inputs;
}

}  // namespace clipvane::cli
