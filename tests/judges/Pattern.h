#pragma once

#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <memory>
#include <string>
#include <string_view>

namespace clipvane::test {

icu::UnicodeString utf16(std::string_view text);
std::string utf8(const icu::UnicodeString& text);

/// A pattern run by ICU's engine. Throws when the engine fails, as it does on huge texts.
class Pattern {
  public:
    explicit Pattern(std::string_view pattern);

    /// Whether the first match in `text`, which must outlive the groups, exists.
    bool find(const icu::UnicodeString& text);

    std::string group(int number);

  private:
    std::unique_ptr<icu::RegexMatcher> matcher;
};

}  // namespace clipvane::test
