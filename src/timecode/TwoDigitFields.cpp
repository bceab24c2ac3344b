#include "timecode/TwoDigitFields.h"

namespace clipvane {
namespace {

void writePair(char* text, std::uint32_t value) {
    text[0] = static_cast<char>('0' + value / 10);
    text[1] = static_cast<char>('0' + value % 10);
}

}  // namespace

std::optional<TimecodeFields> readTwoDigitFields(std::string_view text) {
    if (text.size() != twoDigitLength) return std::nullopt;
    TimecodeFields fields{};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::size_t at = i * 3;
        const auto tens = static_cast<unsigned>(text[at] - '0');
        const auto ones = static_cast<unsigned>(text[at + 1] - '0');
        if (tens > 9 || ones > 9) return std::nullopt;
        if (i > 0 && text[at - 1] != ':' && text[at - 1] != ';') return std::nullopt;
        fields[i] = tens * 10 + ones;
    }
    return fields;
}

void writeTwoDigitFields(std::span<char, twoDigitLength> text, std::int64_t count,
                         std::int64_t base, char separator) {
    // For what fits, 32 bits are enough, and dividing them is several times as fast.
    const auto total = static_cast<std::uint32_t>(count);
    const auto divisor = static_cast<std::uint32_t>(base);
    const std::uint32_t seconds = total / divisor;
    const std::uint32_t minutes = seconds / 60;
    char* const to = text.data();
    writePair(to, minutes / 60);
    to[2] = ':';
    writePair(to + 3, minutes % 60);
    to[5] = ':';
    writePair(to + 6, seconds % 60);
    to[8] = separator;
    writePair(to + 9, total % divisor);
}

}  // namespace clipvane
