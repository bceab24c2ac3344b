// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/Timecode.h>
#include "base/Number.h"
#include "import/CommonTimelineXMLDelegate.h"
#include "import/XMLText.h"

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
    if (holdsColon(text)) return clipvane::frames(text, fps);
    if (text.ends_with('s')) return secondsFrames(text.substr(0, text.size() - 1), fps);
    const auto number = parseNumber(text);
    if (!number || *number < 0) return std::nullopt;
    return roundToInteger(*number);
}

}  // namespace

std::string CommonTimelineXMLDelegate::timing(std::string_view value) const {
    const ViewOrCopy cleaned = cleanedXMLText(value);
    const std::string_view text = cleaned.view();
    if (text.empty() || isNegativeNumber(text)) return {};
    if (holdsColon(text)) return std::string(text);
    const auto count = cleanedFrames(text, fps);
    return count ? timecode(*count) : std::string(text);
}

std::optional<std::int64_t> CommonTimelineXMLDelegate::frames(std::string_view from) const {
    return cleanedFrames(cleanedXMLText(from).view(), fps);
}

std::string CommonTimelineXMLDelegate::timecode(std::int64_t fromFrames) const {
    constexpr bool usesDropFrameSeparator = false;
    return clipvane::timecode(fromFrames, fps, usesDropFrameSeparator);
}

}  // namespace clipvane
