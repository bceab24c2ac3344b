#include "judges/EDLJudge.h"

#include <unicode/locid.h>
#include <unicode/uniset.h>

#include <stdexcept>

namespace clipvane::test {
namespace {

icu::UnicodeSet setOf(const char16_t* pattern) {
    UErrorCode error = U_ZERO_ERROR;
    icu::UnicodeSet set(icu::UnicodeString(pattern), error);
    if (U_FAILURE(error)) throw std::runtime_error(u_errorName(error));
    return set;
}

const icu::UnicodeSet newlines = setOf(uR"([\u000A-\u000D\u0085\u2028\u2029])");
const icu::UnicodeSet blanks = setOf(uR"([\u0009[:Zs:]])");
const icu::UnicodeSet blanksAndNewlines = setOf(uR"([\u0009[:Z:]\u000A-\u000D\u0085])");

icu::UnicodeString trimmed(const icu::UnicodeString& text, const icu::UnicodeSet& set) {
    std::int32_t first = 0;
    std::int32_t last = text.length();
    while (first < last && set.contains(text.char32At(first))) {
        first = text.moveIndex32(first, 1);
    }
    while (first < last && set.contains(text.char32At(last - 1))) {
        last = text.moveIndex32(last, -1);
    }
    return text.tempSubStringBetween(first, last);
}

std::vector<icu::UnicodeString> linesOf(const icu::UnicodeString& text) {
    std::vector<icu::UnicodeString> lines(1);
    for (std::int32_t i = 0; i < text.length(); ++i) {
        if (newlines.contains(text[i])) {
            lines.emplace_back();
        } else {
            lines.back() += text[i];
        }
    }
    return lines;
}

}  // namespace

icu::UnicodeString judgedTrimming(const icu::UnicodeString& text) {
    return trimmed(text, blanksAndNewlines);
}

std::optional<std::string> judgedClipName(const icu::UnicodeString& line) {
    const icu::UnicodeString upperCase = icu::UnicodeString(line).toUpper(icu::Locale::getRoot());
    if (upperCase.indexOf(u"FROM CLIP NAME") < 0) return std::nullopt;
    return utf8(judgedTrimming(line.tempSubString(line.lastIndexOf(u':') + 1)));
}

std::vector<TimelineEvent> EDLJudge::read(const icu::UnicodeString& text) {
    std::vector<TimelineEvent> events;
    for (const icu::UnicodeString& line : linesOf(text)) {
        if (pattern.find(line)) {
            events.push_back(eventOf(line));
            continue;
        }
        if (events.empty()) continue;
        const auto name = judgedClipName(line);
        if (name && !name->empty()) events.back().clipName = *name;
        if (name || trimmed(line, blanks).startsWith(u'*')) {
            events.back().rawText += '\n' + utf8(line);
        }
    }
    return events;
}

TimelineEvent EDLJudge::eventOf(const icu::UnicodeString& line) {
    TimelineEvent event;
    event.eventNumber = pattern.group(1);
    event.clipName = "Clip " + pattern.group(1);
    event.reelID = pattern.group(2);
    event.track = pattern.group(3);
    event.sourceIn = pattern.group(5);
    event.sourceOut = pattern.group(6);
    event.recordIn = pattern.group(7);
    event.recordOut = pattern.group(8);
    event.format = "EDL";
    event.rawText = utf8(line);
    return event;
}

}  // namespace clipvane::test
