#include "judges/TimecodeJudge.h"

#include <algorithm>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

namespace clipvane::test {
namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

std::vector<std::string> piecesOf(const std::string& text) {
    std::vector<std::string> pieces(1);
    for (const char c : text) {
        if (c == ':') {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

}  // namespace

std::int64_t within64Bits(Wide value) {
    if (value < smallest || value > largest) throw Overflow();
    return static_cast<std::int64_t>(value);
}

std::int64_t judgedRounding(double value) {
    const double rounded = std::round(value);
    if (!(std::abs(rounded) < std::ldexp(1, 63)) && rounded != -std::ldexp(1, 63)) throw Overflow();
    return static_cast<std::int64_t>(rounded);
}

std::int64_t judgedBase(double fps) {
    return std::max<std::int64_t>(judgedRounding(fps), 1);
}

std::optional<std::int64_t> judgedInteger(const std::string& text) {
    const std::size_t signs = text.starts_with('+') || text.starts_with('-') ? 1 : 0;
    if (text.size() == signs) return std::nullopt;
    Wide value = 0;
    for (const char c : text.substr(signs)) {
        if (c < '0' || c > '9') return std::nullopt;
        // What is beyond 64 bits with either sign stays so, however many digits follow.
        if (value <= Wide{largest} + 1) value = value * 10 + (c - '0');
    }
    if (text.starts_with('-')) value = -value;
    if (value < smallest || value > largest) return std::nullopt;
    return static_cast<std::int64_t>(value);
}

std::optional<std::int64_t> judgedFrames(std::string text, double fps) {
    std::ranges::replace(text, ';', ':');
    std::vector<std::int64_t> numbers;
    for (const std::string& piece : piecesOf(text)) {
        if (const auto number = judgedInteger(piece)) numbers.push_back(*number);
    }
    if (numbers.size() != 4) return std::nullopt;
    const Wide sixty = 60;
    std::int64_t count = within64Bits(numbers[0] * sixty);
    count = within64Bits(static_cast<Wide>(count) + numbers[1]);
    count = within64Bits(count * sixty);
    count = within64Bits(static_cast<Wide>(count) + numbers[2]);
    count = within64Bits(static_cast<Wide>(count) * judgedBase(fps));
    return within64Bits(static_cast<Wide>(count) + numbers[3]);
}

std::string judgedTimecode(std::int64_t count, double fps, char separator) {
    const std::int64_t base = judgedBase(fps);
    const std::int64_t seconds = count / base;
    char text[128];
    std::snprintf(text, sizeof text, "%02" PRId64 ":%02" PRId64 ":%02" PRId64 "%c%02" PRId64,
                  seconds / 3600, seconds / 60 % 60, seconds % 60, separator, count % base);
    return text;
}

std::string judgedConversion(const std::string& text, double from, double to) {
    const auto count = judgedFrames(text, from);
    if (!count) return text;
    const auto fromBase = static_cast<double>(judgedBase(from));
    const auto toBase = static_cast<double>(judgedBase(to));
    const std::int64_t converted = judgedRounding(static_cast<double>(*count) / fromBase * toBase);
    return judgedTimecode(converted, to, text.find(';') == std::string::npos ? ':' : ';');
}

std::string judgedDuration(const std::string& from, const std::string& to, double fps) {
    const auto start = judgedFrames(from, fps);
    const auto end = start ? judgedFrames(to, fps) : std::nullopt;
    if (!end) return "-";
    const std::int64_t count =
        std::max<std::int64_t>(within64Bits(static_cast<Wide>(*end) - *start), 0);
    return judgedTimecode(count, fps, ':') + " (" + std::to_string(count) + " frames)";
}

std::string judgedLabel(double fps) {
    const std::int64_t rounded = judgedRounding(fps);
    if (std::abs(std::round(fps) - fps) < 0.001) return std::to_string(rounded);
    char digits[512];
    std::snprintf(digits, sizeof digits, "%.3f", fps);
    std::string label = digits;
    while (label.find('.') != std::string::npos && label.back() == '0') label.pop_back();
    if (label.back() == '.') label.pop_back();
    return label;
}

}  // namespace clipvane::test
