// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLTiming.h"

#include <array>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include "base/Number.h"
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
    if (holdsColon(text)) return frames(text, fps);
    if (text.ends_with('s')) return secondsFrames(text.substr(0, text.size() - 1), fps);
    const auto number = parseNumber(text);
    if (!number || *number < 0) return std::nullopt;
    return roundToInteger(*number);
}

}  // namespace

XMLTime::XMLTime(std::int64_t frames, double fps)
    : packed(PackedTimecode::ofCount(frames, frameBase(fps))), count(frames) {
    constexpr bool usesDropFrameSeparator = false;
    if (!packed) odd = timecode(frames, fps, usesDropFrameSeparator);
}

std::string XMLTime::text() const {
    if (!packed) return odd;
    std::array<char, twoDigitLength> text;
    packed->write(text);
    return {text.data(), text.size()};
}

std::optional<std::int64_t> XMLTime::frames(double fps) const {
    return count ? count : xmlFrames(odd, fps);
}

XMLTime xmlTime(std::string_view value, double fps) {
    const ViewOrCopy cleaned = cleanedXMLText(value);
    const std::string_view text = cleaned.view();
    if (text.empty() || isNegativeNumber(text)) return {};
    if (holdsColon(text)) return XMLTime(text);
    const auto count = cleanedFrames(text, fps);
    return count ? XMLTime(*count, fps) : XMLTime(text);
}

std::optional<std::int64_t> xmlFrames(std::string_view value, double fps) {
    return cleanedFrames(cleanedXMLText(value).view(), fps);
}

}  // namespace clipvane
