#include "timecode/TwoDigitFields.h"

namespace clipvane {
namespace {

constexpr char digitOf(std::uint32_t value) {
    return static_cast<char>('0' + value);
}

}  // namespace

std::optional<TimecodeFields> readTwoDigitFields(std::string_view text) {
    if (text.size() != std::tuple_size_v<TwoDigitTimecode>) return std::nullopt;
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

std::optional<TwoDigitTimecode> writeTwoDigitFields(std::int64_t count, std::int64_t base,
                                                    char separator) {
    constexpr std::int64_t hundred = 100;
    if (count < 0 || base > hundred || count >= hundred * 3600 * base) return std::nullopt;
    // Within these limits 32 bits are enough, and dividing them is several times as fast.
    const auto total = static_cast<std::uint32_t>(count);
    const auto divisor = static_cast<std::uint32_t>(base);
    const std::uint32_t totalSeconds = total / divisor;
    const std::uint32_t frames = total % divisor;
    const std::uint32_t totalMinutes = totalSeconds / 60;
    const std::uint32_t seconds = totalSeconds % 60;
    const std::uint32_t hours = totalMinutes / 60;
    const std::uint32_t minutes = totalMinutes % 60;
    return TwoDigitTimecode{digitOf(hours / 10),   digitOf(hours % 10),   ':',
                            digitOf(minutes / 10), digitOf(minutes % 10), ':',
                            digitOf(seconds / 10), digitOf(seconds % 10), separator,
                            digitOf(frames / 10),  digitOf(frames % 10)};
}

}  // namespace clipvane
