#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace clipvane::test {

// The timecode arithmetic step by step, in integers of 128 bits and by the C library, with no
// thought of speed.

/// Thrown for a number or count outside 64 bits, where the product is fatal.
struct Overflow {};

__extension__ using Wide = __int128;

std::int64_t within64Bits(Wide value);
std::int64_t judgedRounding(double value);
std::int64_t judgedBase(double fps);
std::optional<std::int64_t> judgedInteger(const std::string& text);
std::optional<std::int64_t> judgedFrames(std::string text, double fps);
std::string judgedTimecode(std::int64_t count, double fps, char separator);
std::string judgedConversion(const std::string& text, double from, double to);
std::string judgedDuration(const std::string& from, const std::string& to, double fps);
std::string judgedLabel(double fps);

}  // namespace clipvane::test
