#include "timecode/Timecode.h"

#include <algorithm>
#include <array>

#include "base/Characters.h"
#include "base/Number.h"
#include "timecode/FrameRate.h"

namespace clipvane {
namespace {

constexpr char dropFrameSeparator = ';';

/// Hours, minutes, seconds and frames.
using Fields = std::array<std::int64_t, 4>;

/// Two digits a field, as nearly every timecode is written.
constexpr std::size_t usualLength = 11;

constexpr bool isSeparator(char c) {
    return c == ':' || c == dropFrameSeparator;
}

std::optional<Fields> usualFields(std::string_view text) {
    if (text.size() != usualLength) return std::nullopt;
    Fields fields{};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::size_t at = i * 3;
        const auto tens = static_cast<unsigned>(text[at] - '0');
        const auto ones = static_cast<unsigned>(text[at + 1] - '0');
        if (tens > 9 || ones > 9) return std::nullopt;
        if (i > 0 && !isSeparator(text[at - 1])) return std::nullopt;
        fields[i] = tens * 10 + ones;
    }
    return fields;
}

std::optional<Fields> lenientFields(std::string_view text) {
    Fields fields{};
    std::size_t count = 0;
    while (!text.empty()) {
        const auto end = static_cast<std::size_t>(
            std::find_if(text.begin(), text.end(), isSeparator) - text.begin());
        if (const auto number = parseInteger(text.substr(0, end))) {
            if (count == fields.size()) return std::nullopt;
            fields[count++] = *number;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    if (count != fields.size()) return std::nullopt;
    return fields;
}

std::optional<Fields> parseFields(std::string_view text) {
    const auto fields = usualFields(text);
    return fields ? fields : lenientFields(text);
}

std::int64_t countFrames(const Fields& fields, std::int64_t base) {
    const auto [hours, minutes, seconds, frames] = fields;
    const std::int64_t totalMinutes = addChecked(multiplyChecked(hours, 60), minutes);
    const std::int64_t totalSeconds = addChecked(multiplyChecked(totalMinutes, 60), seconds);
    return addChecked(multiplyChecked(totalSeconds, base), frames);
}

constexpr char digitOf(std::uint32_t value) {
    return static_cast<char>('0' + value);
}

using UsualTimecode = std::array<char, usualLength>;

/// A timecode of two digits a field, if the count makes one: nearly every count does, and 32-bit
/// division is several times as fast.
std::optional<UsualTimecode> usualTimecode(std::int64_t count, std::int64_t base, char separator) {
    constexpr std::int64_t hundred = 100;
    if (count < 0 || base > hundred || count >= hundred * 3600 * base) return std::nullopt;
    const auto total = static_cast<std::uint32_t>(count);
    const auto divisor = static_cast<std::uint32_t>(base);
    const std::uint32_t totalSeconds = total / divisor;
    const std::uint32_t frames = total % divisor;
    const std::uint32_t totalMinutes = totalSeconds / 60;
    const std::uint32_t seconds = totalSeconds % 60;
    const std::uint32_t hours = totalMinutes / 60;
    const std::uint32_t minutes = totalMinutes % 60;
    return UsualTimecode{digitOf(hours / 10),   digitOf(hours % 10),   ':',
                         digitOf(minutes / 10), digitOf(minutes % 10), ':',
                         digitOf(seconds / 10), digitOf(seconds % 10), separator,
                         digitOf(frames / 10),  digitOf(frames % 10)};
}

void appendTimecode(std::string& text, std::int64_t count, std::int64_t base, char separator) {
    if (const auto usual = usualTimecode(count, base, separator)) {
        text.append(usual->data(), usual->size());
        return;
    }
    const std::int64_t totalSeconds = count / base;
    appendPadded(text, totalSeconds / 3600, 2);
    text += ':';
    appendPadded(text, totalSeconds / 60 % 60, 2);
    text += ':';
    appendPadded(text, totalSeconds % 60, 2);
    text += separator;
    appendPadded(text, count % base, 2);
}

}  // namespace

std::optional<std::int64_t> frames(std::string_view from, double fps) {
    const auto fields = parseFields(from);
    if (!fields) return std::nullopt;
    return countFrames(*fields, frameBase(fps));
}

std::string timecode(std::int64_t fromFrames, double fps, bool usesDropFrameSeparator) {
    std::string text;
    appendTimecode(text, fromFrames, frameBase(fps),
                   usesDropFrameSeparator ? dropFrameSeparator : ':');
    return text;
}

TimecodeConversion::TimecodeConversion(double from, double to)
    : fromBase(frameBase(from)), toBase(frameBase(to)) {}

bool TimecodeConversion::convert(std::string& timecode) const {
    const auto fields = parseFields(timecode);
    if (!fields) return false;
    const std::int64_t count = countFrames(*fields, fromBase);
    const std::int64_t converted = roundToInteger(
        static_cast<double>(count) / static_cast<double>(fromBase) * static_cast<double>(toBase));
    const bool dropFrame = timecode.find(dropFrameSeparator) != std::string::npos;
    const char separator = dropFrame ? dropFrameSeparator : ':';
    const auto usual = usualTimecode(converted, toBase, separator);
    if (usual && timecode.size() == usual->size()) {
        std::ranges::copy(*usual, timecode.begin());
    } else {
        timecode.clear();
        appendTimecode(timecode, converted, toBase, separator);
    }
    return true;
}

std::string convertTimecode(std::string_view timecode, double from, double to) {
    std::string converted(timecode);
    // A text that is not a timecode asks nothing of the rates.
    if (parseFields(timecode)) TimecodeConversion(from, to).convert(converted);
    return converted;
}

void appendDuration(std::string& text, std::string_view from, std::string_view to, double fps) {
    const auto start = frames(from, fps);
    const auto end = start ? frames(to, fps) : std::nullopt;
    if (!end) {
        text += '-';
        return;
    }
    const std::int64_t count = std::max<std::int64_t>(subtractChecked(*end, *start), 0);
    appendTimecode(text, count, frameBase(fps), ':');
    text += " (";
    appendInteger(text, count);
    text += " frames)";
}

std::string durationDisplay(std::string_view from, std::string_view to, double fps) {
    std::string text;
    appendDuration(text, from, to, fps);
    return text;
}

}  // namespace clipvane
