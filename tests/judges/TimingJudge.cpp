#include "judges/TimingJudge.h"

#include <cstdlib>

#include "judges/EDLJudge.h"
#include "judges/Pattern.h"
#include "judges/TimecodeJudge.h"

namespace clipvane::test {
namespace {

/// The whole of `text` as one number; strtod alone would skip leading blanks and read a NaN's
/// payload.
std::optional<double> number(const std::string& text) {
    constexpr const char* alphabet = "0123456789abcdefABCDEFxXpPiInNtTyY.+-";
    if (text.empty() || text.find_first_not_of(alphabet) != std::string::npos) return std::nullopt;
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (end != text.c_str() + text.size()) return std::nullopt;
    return value;
}

std::optional<std::int64_t> secondsFrames(const std::string& seconds, double fps) {
    const std::size_t slash = seconds.find('/');
    if (slash == std::string::npos) {
        const auto value = number(seconds);
        if (!value) return std::nullopt;
        return judgedRounding(*value * fps);
    }
    const double numerator = number(seconds.substr(0, slash)).value_or(0);
    const auto denominator = number(seconds.substr(slash + 1));
    if (!denominator || !(*denominator > 0)) return std::nullopt;
    const double quotient = numerator / *denominator;
    return judgedRounding(quotient * fps);
}

}  // namespace

std::string judgedCleaning(const std::string& text) {
    icu::UnicodeString cleaned = utf16(text);
    cleaned.findAndReplace(u"file://", u"");
    cleaned.findAndReplace(u"%20", u" ");
    return utf8(judgedTrimming(cleaned));
}

std::optional<std::int64_t> judgedTimingFrames(const std::string& text, double fps) {
    const std::string cleaned = judgedCleaning(text);
    if (cleaned.find(':') != std::string::npos) return judgedFrames(cleaned, fps);
    if (cleaned.ends_with('s')) return secondsFrames(cleaned.substr(0, cleaned.size() - 1), fps);
    const auto value = number(cleaned);
    if (!value || *value < 0) return std::nullopt;
    return judgedRounding(*value);
}

std::string judgedTiming(const std::string& text, double fps) {
    const std::string cleaned = judgedCleaning(text);
    if (cleaned.empty() || cleaned.find(':') != std::string::npos) return cleaned;
    if (const auto value = number(cleaned); value && *value < 0) return {};
    const auto count = judgedTimingFrames(cleaned, fps);
    return count ? judgedTimecode(*count, fps, ':') : cleaned;
}

}  // namespace clipvane::test
