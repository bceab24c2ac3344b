#include "judges/FrameRateJudge.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace clipvane::test {

std::optional<double> FrameRateJudge::detect(const icu::UnicodeString& text) {
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

std::size_t FrameRateJudge::smallestShare() const {
    return *std::ranges::min_element(counts);
}

double FrameRateJudge::numberIn(Pattern& pattern, int group) {
    return std::strtod(pattern.group(group).c_str(), nullptr);
}

double FrameRateJudge::decidedBy(const Pattern& pattern, double fps) {
    ++counts[&pattern == &named ? 0 : &pattern == &element ? 1 : &pattern == &attribute ? 2 : 3];
    return fps;
}

bool sameRate(const std::optional<double>& a, const std::optional<double>& b) {
    return a == b || (a && b && std::isnan(*a) && std::isnan(*b));
}

}  // namespace clipvane::test
