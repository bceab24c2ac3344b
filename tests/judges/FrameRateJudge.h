#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "judges/Pattern.h"

namespace clipvane::test {

/// Frame-rate detection by ICU's engine: of each pattern the first match alone counts.
class FrameRateJudge {
  public:
    std::optional<double> detect(const icu::UnicodeString& text);

    /// How often the pattern that decided least often decided.
    std::size_t smallestShare() const;

  private:
    static double numberIn(Pattern& pattern, int group);
    double decidedBy(const Pattern& pattern, double fps);

    Pattern named{R"((?i)(?:frame rate|framerate|fps)\s*[:=]\s*([0-9]+(?:\.[0-9]+)?))"};
    Pattern element{R"((?i)<timebase>\s*([0-9]+(?:\.[0-9]+)?)\s*</timebase>)"};
    Pattern attribute{R"((?i)timebase=["']([0-9]+(?:\.[0-9]+)?)["'])"};
    Pattern frameDuration{R"((?i)frameDuration=["']([0-9]+)/([0-9]+)s["'])"};
    std::array<std::size_t, 4> counts{};  ///< rates that each pattern gave
};

/// Whether two detections gave the same rate, or none; not a number equals itself.
bool sameRate(const std::optional<double>& a, const std::optional<double>& b);

}  // namespace clipvane::test
