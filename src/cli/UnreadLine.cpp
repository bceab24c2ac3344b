// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/UnreadLine.h"

#include <algorithm>
#include <vector>

#include "base/Characters.h"
#include "import/Scan.h"

namespace clipvane::cli {
namespace {

constexpr std::string_view separators = ":;.,";

/// A timecode in a wider notation than the reader's: four groups of one or two digits.
struct WideTimecode {
    std::string_view text;
    std::string_view otherSeparator;  ///< the first that is not ":"; empty when all are
    bool hasSingleDigit = false;
};

/// Takes such a timecode from the front of `rest`.
bool takeTimecode(std::string_view& rest, WideTimecode& timecode) {
    std::string_view after = rest;
    timecode = {};
    for (int group = 0; group < 4; ++group) {
        if (group > 0) {
            if (after.empty() || separators.find(after.front()) == std::string_view::npos) {
                return false;
            }
            if (after.front() != ':' && timecode.otherSeparator.empty()) {
                timecode.otherSeparator = after.substr(0, 1);
            }
            after.remove_prefix(1);
        }
        const std::size_t digits = takeWhile(after, isASCIIDigit).size();
        if (digits < 1 || digits > 2) return false;
        timecode.hasSingleDigit = timecode.hasSingleDigit || digits == 1;
    }
    timecode.text = rest.substr(0, rest.size() - after.size());
    rest = after;
    return true;
}

std::vector<WideTimecode> timecodesIn(std::string_view line) {
    std::vector<WideTimecode> found;
    WideTimecode timecode;
    while (!line.empty()) {
        if (!isASCIIDigit(static_cast<unsigned char>(line.front()))) {
            line.remove_prefix(1);
        } else if (takeTimecode(line, timecode)) {
            found.push_back(timecode);
        } else {
            takeWhile(line, isASCIIDigit);
        }
    }
    return found;
}

std::vector<std::string_view> wordsIn(std::string_view text) {
    std::vector<std::string_view> words;
    while (true) {
        takeWhile(text, isWhiteSpace);
        if (text.empty()) return words;
        words.push_back(takeWhile(text, [](char32_t c) { return !isWhiteSpace(c); }));
    }
}

bool isCount(std::string_view word) {
    return !word.empty() && std::ranges::all_of(word, [](char c) {
        return isASCIIDigit(static_cast<unsigned char>(c));
    });
}

/// Why the columns before the timecodes are not an event's.
std::string columnFault(const std::vector<std::string_view>& columns) {
    if (columns.empty() || !isCount(columns.front())) return "it begins with no event number";
    if (columns.size() < 4) return "a column is missing before its timecodes";
    if (columns.size() > 5 || (columns.size() == 5 && !isCount(columns.back()))) {
        return "a reel or an edit type of two words";
    }
    return "its timecodes are not separated from what stands beside them";
}

/// Number, reel, track, edit type and four counts of frames.
bool holdsFrameCounts(std::string_view line) {
    const auto words = wordsIn(line);
    return (words.size() == 8 || words.size() == 9) && isCount(words.front()) &&
           !isCount(words[3]) && std::all_of(words.end() - 4, words.end(), isCount);
}

}  // namespace

std::string whyUnread(std::string_view line) {
    const auto timecodes = timecodesIn(line);
    if (timecodes.size() < 4) {
        return holdsFrameCounts(line) ? "frame counts instead of timecodes" : "";
    }
    for (const WideTimecode& timecode : timecodes) {
        if (timecode.otherSeparator == ";") return "a drop-frame separator";
        if (!timecode.otherSeparator.empty()) {
            std::string reason = "\"";
            reason += timecode.otherSeparator;
            reason += "\" instead of \":\" in a timecode";
            return reason;
        }
        if (timecode.hasSingleDigit) return "a field of one digit in a timecode";
    }
    const auto before = static_cast<std::size_t>(timecodes.front().text.data() - line.data());
    return columnFault(wordsIn(line.substr(0, before)));
}

}  // namespace clipvane::cli
