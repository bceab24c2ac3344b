#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <optional>

#include "base/UTF8.h"
#include "import/FrameRateGenerator.h"
#include "import/Judge.h"
#include "import/TimelineParser.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

/// Frame-rate detection by ICU's engine: of each pattern the first match alone counts.
class PatternDetection {
  public:
    std::optional<double> detect(const icu::UnicodeString& text) {
        for (Pattern* pattern : {&named, &element, &attribute}) {
            if (!pattern->find(text)) continue;
            if (const double fps = numberIn(*pattern, 1); fps > 0) return decidedBy(*pattern, fps);
        }
        if (!frameDuration.find(text)) return std::nullopt;
        const double duration = numberIn(frameDuration, 1);
        const double timescale = numberIn(frameDuration, 2);
        if (!(duration > 0 && timescale > 0)) return std::nullopt;
        return decidedBy(frameDuration, timescale / duration);
    }

    std::size_t smallestShare() const {
        return std::min({counts[0], counts[1], counts[2], counts[3]});
    }

  private:
    static double numberIn(Pattern& pattern, int group) {
        return std::strtod(pattern.group(group).c_str(), nullptr);
    }

    double decidedBy(const Pattern& pattern, double fps) {
        ++counts[&pattern == &named       ? 0
                 : &pattern == &element   ? 1
                 : &pattern == &attribute ? 2
                                          : 3];
        return fps;
    }

    Pattern named{R"((?i)(?:frame rate|framerate|fps)\s*[:=]\s*([0-9]+(?:\.[0-9]+)?))"};
    Pattern element{R"((?i)<timebase>\s*([0-9]+(?:\.[0-9]+)?)\s*</timebase>)"};
    Pattern attribute{R"((?i)timebase=["']([0-9]+(?:\.[0-9]+)?)["'])"};
    Pattern frameDuration{R"((?i)frameDuration=["']([0-9]+)/([0-9]+)s["'])"};
    std::array<std::size_t, 4> counts{};  ///< rates that each pattern gave
};

bool same(const std::optional<double>& a, const std::optional<double>& b) {
    return a == b || (a && b && std::isnan(*a) && std::isnan(*b));
}

TEST(FrameRateJudge, GeneratedTexts_GiveThePatternsRate) {
    constexpr std::size_t count = scaled(400'000);
    Random random;
    PatternDetection judge;
    std::size_t rates = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string text = generateFrameRateText(random);
        const auto expected = judge.detect(utf16(text));
        const auto fps = TimelineParser::detectFPS(text);
        ASSERT_TRUE(same(fps, expected))
            << expected.value_or(-1) << " expected, got " << fps.value_or(-1) << ": " << text;
        if (fps) ++rates;
    }
    std::cout << rates << " of " << count << " texts name a rate\n";
    EXPECT_LT(rates, count * 9 / 10);
    EXPECT_GT(judge.smallestShare(), count / 20) << "a pattern is hardly ever looked at";
}

/// Every code point once as each letter of the names, as a blank, as a digit and as a quote.
TEST(FrameRateJudge, EveryCodePointAtEveryKindOfPlace_GivesThePatternsRate) {
    PatternDetection judge;
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c >= 0xD800 && c <= 0xDFFF) continue;
        std::string s;
        appendUTF8(s, c);
        for (const std::string& text :
             {"fp" + s + ":1", s + "ps:2", "f" + s + "s:3", "fps" + s + ":" + s + "4" + s,
              "frame" + s + "rate=5", "<timeba" + s + "e>6</timeba" + s + "e>",
              "timebase=" + s + "7" + s, "frameDuration='1/25" + s + "'"}) {
            ASSERT_TRUE(same(TimelineParser::detectFPS(text), judge.detect(utf16(text)))) << text;
        }
    }
}

}  // namespace
}  // namespace clipvane::test
