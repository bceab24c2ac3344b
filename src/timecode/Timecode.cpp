// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/Timecode.h>

#include <algorithm>

#include <clipvane/FrameRate.h>
#include <clipvane/detail/TwoDigitFields.h>
#include "base/GrowingText.h"
#include "base/Number.h"

namespace clipvane {
namespace {

constexpr char dropFrameSeparator = ';';

constexpr bool isSeparator(char c) {
    return c == ':' || c == dropFrameSeparator;
}

std::optional<TimecodeFields> lenientFields(std::string_view text) {
    TimecodeFields fields{};
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

std::optional<TimecodeFields> parseFields(std::string_view text) {
    const auto fields = readTwoDigitFields(text);
    return fields ? fields : lenientFields(text);
}

std::int64_t countSeconds(const TimecodeFields& fields) {
    const std::int64_t minutes = addChecked(multiplyChecked(fields[0], 60), fields[1]);
    return addChecked(multiplyChecked(minutes, 60), fields[2]);
}

std::int64_t countFrames(const TimecodeFields& fields, std::int64_t base) {
    return addChecked(multiplyChecked(countSeconds(fields), base), fields[3]);
}

std::int64_t convertedFrames(const TimecodeFields& fields, std::int64_t from, std::int64_t to) {
    const std::int64_t count = countFrames(fields, from);
    return roundToInteger(static_cast<double>(count) / static_cast<double>(from) *
                          static_cast<double>(to));
}

void appendTimecode(std::string& text, std::int64_t count, std::int64_t base, char separator) {
    if (fitsTwoDigitFields(count, base)) {
        const std::size_t start = text.size();
        text.resize(start + twoDigitLength);
        writeTwoDigitFields(std::span<char, twoDigitLength>(text.data() + start, twoDigitLength),
                            count, base, separator);
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

/// Puts a duration of `count` frames, which is not negative.
void putFrames(GrowingText& text, std::int64_t count, std::int64_t base) {
    if (fitsTwoDigitFields(count, base)) {
        const std::span<char, twoDigitLength> to(text.room(twoDigitLength), twoDigitLength);
        writeTwoDigitFields(to, count, base, ':');
        text.endAt(to.data() + to.size());
    } else {
        std::string wide;
        appendTimecode(wide, count, base, ':');
        text.put(wide);
    }
    text.put(" (");
    text.putNumber(static_cast<std::uint64_t>(count));
    text.put(" frames)");
}

}  // namespace

std::optional<std::int64_t> frames(std::string_view from, double fps) {
    const auto fields = parseFields(from);
    if (!fields) return std::nullopt;
    // When both the time and the rate are impossible, the time is named.
    const std::int64_t seconds = countSeconds(*fields);
    return addChecked(multiplyChecked(seconds, frameBase(fps)), (*fields)[3]);
}

std::string timecode(std::int64_t fromFrames, double fps, bool usesDropFrameSeparator) {
    std::string text;
    appendTimecode(text, fromFrames, frameBase(fps),
                   usesDropFrameSeparator ? dropFrameSeparator : ':');
    return text;
}

// Up to 99 minutes, 99 seconds and 99 frames at one frame a second stay below two hours.
TimecodeConversion::TimecodeConversion(double from, double to)
    : fromBase(frameBase(from)),
      toBase(frameBase(to)),
      hoursThatFit(std::max(fromBase, toBase) <= PackedTimecode::mostBase ? 99 : 0) {
    if (hoursThatFit > 0) prepareFrames();
}

void TimecodeConversion::prepareFrames() {
    for (std::size_t frames = 0; frames < newFrames.size(); ++frames) {
        const auto halves = static_cast<std::int64_t>(frames) * toBase * 2;
        const std::int64_t rounded = (halves + fromBase) / (fromBase * 2);
        // Which way an exact half goes is decided by dividing the whole count, since a double may
        // not hold the quotient exactly. Any other quotient lies too far from a half to be rounded
        // across it.
        const bool isHalf = halves % (fromBase * 2) == fromBase;
        const bool makesSeconds = rounded >= toBase;
        newFrames[frames] = isHalf || makesSeconds ? notAlone : static_cast<std::uint8_t>(rounded);
    }
}

bool TimecodeConversion::convert(std::string& timecode) const {
    if (const auto read = readTwoDigitTimecode(timecode)) {
        const std::int64_t converted = convertedFrames(read->fields, fromBase, toBase);
        const char separator = read->isDropFrame ? dropFrameSeparator : ':';
        if (fitsTwoDigitFields(converted, toBase)) {
            writeTwoDigitFields(std::span<char, twoDigitLength>(timecode), converted, toBase,
                                separator);
            return true;
        }
    }
    const auto fields = lenientFields(timecode);
    if (!fields) return false;
    const bool isDropFrame = timecode.find(dropFrameSeparator) != std::string::npos;
    timecode.clear();
    appendTimecode(timecode, convertedFrames(*fields, fromBase, toBase), toBase,
                   isDropFrame ? dropFrameSeparator : ':');
    return true;
}

PackedTimecode TimecodeConversion::convertByCount(PackedTimecode timecode) const {
    const double count = timecode.count(static_cast<std::uint32_t>(fromBase));
    const double converted = count / static_cast<double>(fromBase) * static_cast<double>(toBase);
    return PackedTimecode::ofFields(fieldsOf(roundToInteger(converted), toBase));
}

std::string convertTimecode(std::string_view timecode, double from, double to) {
    std::string converted(timecode);
    // A text that is not a timecode stays as it is, whatever the rates.
    if (parseFields(timecode)) TimecodeConversion(from, to).convert(converted);
    return converted;
}

void putDuration(GrowingText& text, PackedTimecode from, PackedTimecode to, std::uint32_t base) {
    const std::uint32_t start = from.count(base);
    const std::uint32_t end = to.count(base);
    putFrames(text, end > start ? end - start : 0, base);
}

void putDuration(GrowingText& text, std::string_view from, std::string_view to, double fps) {
    const auto start = frames(from, fps);
    const auto end = start ? frames(to, fps) : std::nullopt;
    if (end) {
        const std::int64_t count = subtractChecked(*end, *start);
        putFrames(text, std::max<std::int64_t>(count, 0), frameBase(fps));
    } else {
        text.put('-');
    }
}

std::string durationDisplay(std::string_view from, std::string_view to, double fps) {
    GrowingText text;
    putDuration(text, from, to, fps);
    return text.take();
}

}  // namespace clipvane
