#pragma once

#include <gtest/gtest.h>
#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <memory>
#include <string>
#include <string_view>

namespace clipvane::test {

inline icu::UnicodeString utf16(std::string_view text) {
    return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

inline std::string utf8(const icu::UnicodeString& text) {
    std::string bytes;
    return text.toUTF8String(bytes);
}

/// A pattern run by ICU's engine, which the hand-written matchers are judged by.
class Pattern {
  public:
    explicit Pattern(std::string_view pattern) {
        UErrorCode error = U_ZERO_ERROR;
        matcher = std::make_unique<icu::RegexMatcher>(utf16(pattern), 0, error);
        EXPECT_TRUE(U_SUCCESS(error)) << pattern;
    }

    /// Whether the first match in `text`, which must outlive the groups, exists.
    bool find(const icu::UnicodeString& text) {
        matcher->reset(text);
        UErrorCode error = U_ZERO_ERROR;
        const bool found = matcher->find(error) != 0;
        EXPECT_TRUE(U_SUCCESS(error));
        return found;
    }

    std::string group(int number) {
        UErrorCode error = U_ZERO_ERROR;
        return utf8(matcher->group(number, error));
    }

  private:
    std::unique_ptr<icu::RegexMatcher> matcher;
};

}  // namespace clipvane::test
