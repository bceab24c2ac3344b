#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace clipvane::test {

// The timing values of XML timelines step by step. `Overflow` where the product is fatal. Numbers
// are the C library's, so the locale must be "C".

std::string judgedCleaning(const std::string& text);
std::optional<std::int64_t> judgedTimingFrames(const std::string& text, double fps);
std::string judgedTiming(const std::string& text, double fps);

}  // namespace clipvane::test
