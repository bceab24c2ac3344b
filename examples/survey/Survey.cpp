// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "Survey.h"

#include <chrono>
#include <string_view>

#include "base/Characters.h"
#include "base/Fatal.h"
#include "base/File.h"
#include "base/UTF8.h"
#include "import/EventLine.h"
#include "import/Lines.h"
#include "import/TimelineParser.h"
#include "model/FrameRateSource.h"
#include "timecode/FrameRate.h"

namespace {

using namespace clipvane;

/// Thrown where the program would stop.
struct Stopped {
    std::string reason;
};

/// Lets `fatal` throw for as long as it lives.
class ThrowingFatal {
  public:
    ThrowingFatal()
        : earlier(setFatalHandler([](std::string_view why) { throw Stopped{std::string(why)}; })) {}
    ThrowingFatal(const ThrowingFatal&) = delete;
    ThrowingFatal& operator=(const ThrowingFatal&) = delete;
    ~ThrowingFatal() { setFatalHandler(earlier); }

  private:
    FatalHandler earlier;
};

bool isDigit(char c) {
    return isASCIIDigit(static_cast<unsigned char>(c));
}

/// Removes a timecode from the front of `text`: four groups of one or two digits with ":", ";", "."
/// or "," between them, which is wider than what Clipvane takes.
bool takeTimecode(std::string_view& text) {
    constexpr std::string_view separators = ":;.,";
    std::string_view rest = text;
    for (int group = 0; group < 4; ++group) {
        if (group > 0) {
            if (rest.empty() || separators.find(rest.front()) == std::string_view::npos)
                return false;
            rest.remove_prefix(1);
        }
        std::size_t digits = 0;
        while (digits < rest.size() && isDigit(rest[digits])) ++digits;
        if (digits < 1 || digits > 2) return false;
        rest.remove_prefix(digits);
    }
    text = rest;
    return true;
}

bool holdsFourTimecodes(std::string_view line) {
    int found = 0;
    while (!line.empty()) {
        if (!isDigit(line.front())) {
            line.remove_prefix(1);
        } else if (takeTimecode(line)) {
            ++found;
        } else {
            while (!line.empty() && isDigit(line.front())) line.remove_prefix(1);
        }
    }
    return found >= 4;
}

std::vector<UnreadLine> unreadLines(std::string_view text) {
    std::vector<UnreadLine> unread;
    std::size_t number = 0;
    Lines lines(text);
    while (const auto line = lines.next()) {
        // The reader sees an empty line between a carriage return and its line feed.
        const bool isLineFeedOfPair =
            line->empty() && line->data() > text.data() && line->data()[-1] == '\r' &&
            line->data() < text.data() + text.size() && *line->data() == '\n';
        if (isLineFeedOfPair) continue;
        ++number;
        if (holdsFourTimecodes(*line) && !matchEventLine(*line)) {
            unread.push_back({number, replaceInvalidUTF8(*line)});
        }
    }
    return unread;
}

/// The kind of XML timeline, by its root element.
const char* xmlFormat(std::string_view data) {
    constexpr auto npos = std::string_view::npos;
    if (data.find("<fcpxml") != npos) return "FCPXML";
    return data.find("<xmeml") != npos ? "XMEML" : "XML";
}

/// Of the extensions that are read, those of XML alone hold an m.
bool isXML(const std::filesystem::path& path) {
    return path.extension().native().find_first_of("mM") != std::string::npos;
}

}  // namespace

Result<Survey> survey(const std::filesystem::path& path) try {
    const ThrowingFatal throwing;
    const auto start = std::chrono::steady_clock::now();
    const auto parsed = TimelineParser::parse(path);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    if (!parsed) return tl::unexpected(parsed.error());

    Survey result;
    result.rate = formatFPS(parsed->fps);
    result.isRateNamed = parsed->fpsSource == fpsSourceFile;
    result.events = parsed->events.size();
    result.milliseconds = time.count();

    const auto file = readFile(path);
    if (!file) return tl::unexpected(file.error());
    if (isXML(path)) {
        result.format = xmlFormat(file->view());
    } else {
        result.format = "EDL";
        result.unreadLines = unreadLines(replaceInvalidUTF8(file->view()));
    }
    return result;
} catch (const Stopped& stopped) {
    return tl::unexpected(Error{"Clipvane", 0, "Clipvane stops at this file: " + stopped.reason});
}
