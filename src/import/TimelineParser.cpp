// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/TimelineParser.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>
#include <stdexcept>
#include <utility>

#include <clipvane/FrameRateSource.h>
#include "base/Characters.h"
#include "base/File.h"
#include "base/UTF8.h"
#include "import/EDLReader.h"
#include "import/FrameRateDetection.h"
#include "import/XMLReader.h"

namespace clipvane {
namespace {

constexpr std::array<std::string_view, 2> edlExtensions{"edl", "txt"};
constexpr std::array<std::string_view, 3> xmlExtensions{"xml", "fcpxml", "xmeml"};

Error unsupportedType() {
    return {"Clipvane", 10, "Unsupported file type. Open EDL, XML, FCPXML, or XMEML files."};
}

/// The text after the last "." of the file's name, in lower case; empty without one. ASCII is
/// enough: no other letter becomes one of an accepted extension.
std::string lowerCaseExtension(const std::filesystem::path& url) {
    const std::string name = url.filename().native();
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) return {};
    std::string extension = name.substr(dot + 1);
    std::ranges::transform(extension, extension.begin(), asciiLower);
    return extension;
}

template <class Extensions>
bool contains(const Extensions& extensions, std::string_view extension) {
    return std::ranges::find(extensions, extension) != extensions.end();
}

TimelineParseResult resultAtRate(const std::optional<double>& detectedFPS) {
    if (detectedFPS) return {{}, *detectedFPS, std::string(fpsSourceFile)};
    return {{}, defaultFPS, std::string(fpsSourceDefault)};
}

TimelineParseResult parseEDLText(FileBytes text) {
    TimelineParseResult result = resultAtRate(detectFPS(text.view()));
    result.events = readEDL(std::move(text));
    return result;
}

TimelineParseResult parseEDLText(std::string text) {
    TimelineParseResult result = resultAtRate(detectFPS(text));
    result.events = readEDL(std::move(text));
    return result;
}

TimelineParseResult parseXMLData(std::string_view data) {
    // The rate is looked for in the bytes as UTF-8, whatever the document's encoding.
    TimelineParseResult result = resultAtRate(detectFPS(data));
    result.events = readXML(data, result.fps);
    return result;
}

}  // namespace

Result<TimelineParseResult> TimelineParser::parse(const std::filesystem::path& url) try {
    auto file = readFile(url);
    if (!file) return tl::unexpected(std::move(file.error()));
    const std::string extension = lowerCaseExtension(url);

    if (contains(edlExtensions, extension)) {
        if (validUTF8Prefix(file->view()) == file->view().size()) {
            return parseEDLText(std::move(*file));
        }
        std::string text = replaceInvalidUTF8(file->view());
        *file = {};
        return parseEDLText(std::move(text));
    }
    if (contains(xmlExtensions, extension)) return parseXMLData(file->view());
    return tl::unexpected(unsupportedType());
} catch (const std::bad_alloc&) {
    return tl::unexpected(fileError("read", url, ENOMEM));
} catch (const std::length_error&) {
    return tl::unexpected(fileError("read", url, ENOMEM));
}

std::optional<double> TimelineParser::detectFPS(std::string_view in) {
    return clipvane::detectFPS(in);
}

EventList TimelineParser::parseEDL(std::string_view text) {
    return readEDL(std::string(text));
}

EventList TimelineParser::parseXML(std::string_view data, double fps) {
    return readXML(data, fps);
}

}  // namespace clipvane
