// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/Number.h"
#include "import/CommonTimelineXMLDelegate.h"
#include "import/XMLText.h"
#include "timecode/FrameRate.h"
#include "timecode/TwoDigitFields.h"

namespace clipvane {
namespace {

bool holdsColon(std::string_view text) {
    return text.find(':') != std::string_view::npos;
}

bool isNegativeNumber(std::string_view text) {
    if (!text.starts_with('-')) return false;
    const auto number = parseNumber(text);
    return number && *number < 0;
}

std::optional<TimecodeFields> lenientFields(std::string_view text) {
    TimecodeFields fields{};
    std::size_t count = 0;
    while (true) {
        std::size_t length = 0;
        while (length < text.size() && text[length] != ':' && text[length] != ';') ++length;
        if (const auto number = parseInteger(text.substr(0, length))) {
            if (count == fields.size()) return std::nullopt;
            fields[count++] = *number;
        }
        if (length == text.size()) break;
        text.remove_prefix(length + 1);
    }
    if (count != fields.size()) return std::nullopt;
    return fields;
}

std::int64_t countFrames(const TimecodeFields& fields, double fps) {
    const auto [hours, minutes, seconds, frames] = fields;
    const std::int64_t totalMinutes = addChecked(multiplyChecked(hours, 60), minutes);
    const std::int64_t totalSeconds = addChecked(multiplyChecked(totalMinutes, 60), seconds);
    return addChecked(multiplyChecked(totalSeconds, frameBase(fps)), frames);
}

std::optional<std::int64_t> timecodeFrames(std::string_view text, double fps) {
    if (const auto fields = readTwoDigitFields(text)) return countFrames(*fields, fps);
    if (const auto fields = lenientFields(text)) return countFrames(*fields, fps);
    return std::nullopt;
}

/// Frames in "numerator/denominator" seconds. A numerator that is no number counts as zero.
std::optional<std::int64_t> fractionFrames(std::string_view numerator, std::string_view denominator,
                                           double fps) {
    const auto divisor = parseNumber(denominator);
    if (!divisor || !(*divisor > 0)) return std::nullopt;
    return roundToInteger(parseNumber(numerator).value_or(0) / *divisor * fps);
}

std::optional<std::int64_t> secondsFrames(std::string_view seconds, double fps) {
    const std::size_t slash = seconds.find('/');
    if (slash != std::string_view::npos) {
        return fractionFrames(seconds.substr(0, slash), seconds.substr(slash + 1), fps);
    }
    const auto number = parseNumber(seconds);
    if (!number) return std::nullopt;
    return roundToInteger(*number * fps);
}

std::optional<std::int64_t> cleanedFrames(std::string_view text, double fps) {
    if (holdsColon(text)) return timecodeFrames(text, fps);
    if (text.ends_with('s')) return secondsFrames(text.substr(0, text.size() - 1), fps);
    const auto number = parseNumber(text);
    if (!number || *number < 0) return std::nullopt;
    return roundToInteger(*number);
}

}  // namespace

std::string CommonTimelineXMLDelegate::timing(std::string_view value) const {
    const CleanedXMLText cleaned(value);
    const std::string_view text = cleaned.view();
    if (text.empty() || isNegativeNumber(text)) return {};
    if (holdsColon(text)) return std::string(text);
    const auto count = cleanedFrames(text, fps);
    return count ? timecode(*count) : std::string(text);
}

std::optional<std::int64_t> CommonTimelineXMLDelegate::frames(std::string_view from) const {
    return cleanedFrames(CleanedXMLText(from).view(), fps);
}

std::string CommonTimelineXMLDelegate::timecode(std::int64_t fromFrames) const {
    const std::int64_t base = frameBase(fps);
    std::string text;
    if (fitsTwoDigitFields(fromFrames, base)) {
        text.resize(twoDigitLength);
        writeTwoDigitFields(std::span<char, twoDigitLength>(text), fromFrames, base, ':');
        return text;
    }
    const std::int64_t seconds = fromFrames / base;
    const std::int64_t frames = fromFrames - seconds * base;
    appendPadded(text, seconds / 3600, 2);
    text += ':';
    appendPadded(text, seconds / 60 % 60, 2);
    text += ':';
    appendPadded(text, seconds % 60, 2);
    text += ':';
    appendPadded(text, frames, 2);
    return text;
}

}  // namespace clipvane
