// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cinttypes>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include "judges/TimecodeJudge.h"
#include "support/LongTest.h"
#include "support/Scale.h"
#include "support/ThrowingFatal.h"

namespace clipvane::test {
namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

/// Counts of every size and either sign, among them those about a day, 100 hours and the ends.
class Counts {
  public:
    std::int64_t draw(std::int64_t base) {
        const auto small = static_cast<std::int64_t>(engine() % 200) - 100;
        switch (engine() % 6) {
            case 0:
                return small;
            case 1:
                return 24 * 3600 * base + small;
            case 2:
                return -100 * 3600 * base + small;
            case 3:
                return small < 0 ? largest + small : smallest + small;
            default:
                return static_cast<std::int64_t>(engine()) >> (engine() % 64);
        }
    }

  private:
    std::mt19937_64 engine{17};
};

TEST(Timecode, EveryCountAtEveryStandardRate_IsReadBack) {
    CLIPVANE_LONG_TEST();
    Counts counts;
    for (const double fps : standardFPSValues) {
        for (int i = 0; i < 50'000; ++i) {
            const std::int64_t count = counts.draw(frameBase(fps));
            for (const bool dropFrame : {false, true}) {
                const std::string text = timecode(count, fps, dropFrame);
                ASSERT_EQ(frames(text, fps), count) << text;
                ASSERT_EQ(text.find(';') != std::string::npos, dropFrame) << text;
            }
        }
    }
}

TEST(Timecode, EveryCountOfADay_IsReadBackAndGrowsFieldByField) {
    CLIPVANE_LONG_TEST();
    std::string earlier;
    for (std::int64_t count = 0; count < 24 * 3600 * 25; ++count) {
        const std::string text = timecode(count, 25, false);
        ASSERT_EQ(text.size(), 11U);
        ASSERT_LT(earlier, text);
        ASSERT_EQ(frames(text, 25), count);
        earlier = text;
    }
}

TEST(Timecode, ManyCountsAtManyRates_AreWrittenAsTheCLibraryWritesThem) {
    CLIPVANE_LONG_TEST();
    Counts counts;
    for (const std::int64_t base : {1, 2, 24, 25, 30, 60, 99, 100, 101, 120, 1000}) {
        const std::int64_t hundredHours = 100 * 3600 * base;
        std::vector<std::int64_t> drawn{0, hundredHours - 1, hundredHours, largest, smallest};
        for (int i = 0; i < 20'000; ++i) drawn.push_back(counts.draw(base));
        for (const std::int64_t count : drawn) {
            const std::int64_t seconds = count / base;
            char expected[128];
            std::snprintf(expected, sizeof expected,
                          "%02" PRId64 ":%02" PRId64 ":%02" PRId64 ";%02" PRId64, seconds / 3600,
                          seconds / 60 % 60, seconds % 60, count % base);
            ASSERT_EQ(timecode(count, static_cast<double>(base), true), expected) << count;
        }
    }
}

/// The nearest integer to count / from * to, halves away from zero, by integers alone.
std::int64_t exactlyConverted(std::int64_t count, std::int64_t from, std::int64_t to) {
    const std::int64_t doubled = std::abs(count) * to * 2 + from;
    const std::int64_t size = doubled / (2 * from);
    return count < 0 ? -size : size;
}

TEST(ConvertTimecode, BetweenAllStandardRates_IsTheNearestFrameByExactArithmetic) {
    CLIPVANE_LONG_TEST();
    std::mt19937_64 engine(23);
    for (const double from : standardFPSValues) {
        for (const double to : standardFPSValues) {
            const std::int64_t fromBase = frameBase(from);
            const std::int64_t toBase = frameBase(to);
            for (int i = 0; i < 5'000; ++i) {
                const auto count =
                    (static_cast<std::int64_t>(engine()) >> (24 + engine() % 40)) % (1LL << 40);
                // Where a tie's quotient is no double, the division decides; see below.
                const bool isTie =
                    count * toBase * 2 % fromBase == 0 && count * toBase * 2 / fromBase % 2 != 0;
                const std::int64_t odd = fromBase / std::gcd(fromBase, std::int64_t{64});
                if (isTie && count % odd != 0) continue;
                const std::string text = timecode(count, from, false);
                ASSERT_EQ(frames(convertTimecode(text, from, to), to),
                          exactlyConverted(count, fromBase, toBase))
                    << text << " from " << from << " to " << to;
            }
        }
    }
}

TEST(ConvertTimecode, EveryHalfFrameFrom64To32_GoesAwayFromZero) {
    for (std::int64_t count = -10'001; count <= 10'001; count += 2) {
        const std::int64_t expected = count < 0 ? (count - 1) / 2 : (count + 1) / 2;
        ASSERT_EQ(frames(convertTimecode(timecode(count, 64, false), 64, 32), 32), expected);
    }
}

TEST(ConvertTimecode, DividesBeforeItMultiplies) {
    // 29 / 50 as a double is a little below 0.58, so that times 25 it is no half any more.
    EXPECT_EQ(convertTimecode("00:00:00:29", 50, 25), "00:00:00:14");
    for (std::int64_t count = 0; count < 20'000; ++count) {
        volatile double seconds = static_cast<double>(count) / 50;
        volatile double converted = seconds * 25;
        auto expected = static_cast<std::int64_t>(converted);
        if (converted - static_cast<double>(expected) >= 0.5) ++expected;
        ASSERT_EQ(frames(convertTimecode(timecode(count, 50, false), 50, 25), 25), expected);
    }
}

/// Texts that are timecodes, or nearly so.
class Texts {
  public:
    std::string draw() {
        std::string text;
        switch (engine() % 4) {
            case 0:
                for (int i = 0; i < 11; ++i)
                    text += i % 3 == 2 ? oneOf(":::;") : oneOf("0123456789");
                break;
            case 1:
                for (int i = 0; i < 11; ++i) text += i % 3 == 2 ? oneOf(":;") : oneOf("0123456789");
                text[engine() % 11] = oneOf("/:;09 +-x\xFF\x80.");
                if (engine() % 4 == 0) text.erase(engine() % 11, 1);
                break;
            case 2:
                for (auto pieces = 3 + engine() % 3; pieces > 0; --pieces) {
                    if (engine() % 8 == 0) text += oneOf("+-x: ");
                    text += number();
                    if (engine() % 16 == 0) text += oneOf("+-x: ;");
                    text += oneOf(":::;");
                }
                if (engine() % 2 == 0) text.pop_back();
                break;
            default:
                for (auto left = engine() % 16; left > 0; --left)
                    text += oneOf("0019:::;;+- x\xC3");
        }
        return text;
    }

  private:
    char oneOf(std::string_view choice) { return choice[engine() % choice.size()]; }

    std::string number() {
        switch (engine() % 8) {
            case 0:
                return std::to_string(static_cast<std::int64_t>(engine()) >> (engine() % 64));
            case 1:
                return "9223372036854775807";
            case 2:
                return "9223372036854775808";
            default:
                return std::to_string(engine() % 100);
        }
    }

    std::mt19937_64 engine{29};
};

TEST(Frames, EveryByteAtEveryPlaceOfATimecode_IsReadAsTheDescriptionSays) {
    const std::string timecodes[]{"12:34:56:07", "00:00;00;00", "99;99:99;99"};
    for (const std::string& timecode : timecodes) {
        for (std::size_t at = 0; at < timecode.size(); ++at) {
            for (int byte = 0; byte < 256; ++byte) {
                std::string text = timecode;
                text[at] = static_cast<char>(byte);
                ASSERT_EQ(frames(text, 25), judgedFrames(text, 25)) << text;
                const std::string converted = convertTimecode(text, 25, 50);
                ASSERT_EQ(frames(converted, 50).has_value(), frames(text, 25).has_value()) << text;
                if (!frames(text, 25)) continue;
                ASSERT_EQ(frames(converted, 50), *frames(text, 25) * 2) << text;
                ASSERT_EQ(converted.find(';') == std::string::npos,
                          text.find(';') == std::string::npos);
            }
        }
    }
}

TEST(Frames, GeneratedTexts_AreReadAsTheDescriptionSays) {
    CLIPVANE_LONG_TEST();
    const ThrowingFatal throwing;
    Texts texts;
    std::size_t read = 0;
    std::size_t rejected = 0;
    std::size_t fatal = 0;
    constexpr std::size_t count = scaled(1'000'000);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string text = texts.draw();
        const double fps = standardFPSValues[i % standardFPSValues.size()];
        std::optional<std::int64_t> expected;
        bool isFatal = false;
        try {
            expected = judgedFrames(text, fps);
        } catch (const Overflow&) {
            isFatal = true;
        }
        try {
            ASSERT_EQ(frames(text, fps), expected) << text;
            ASSERT_FALSE(isFatal) << text;
        } catch (const ThrowingFatal::Reason&) {
            ASSERT_TRUE(isFatal) << text;
        }
        ++(isFatal ? fatal : expected ? read : rejected);
    }
    EXPECT_GT(read, count / 5);
    EXPECT_GT(rejected, count / 5);
    EXPECT_GT(fatal, count / 100);
}

}  // namespace
}  // namespace clipvane::test
