#include "judges/Pattern.h"

#include <stdexcept>

namespace clipvane::test {
namespace {

void check(UErrorCode error) {
    if (U_FAILURE(error)) throw std::runtime_error(u_errorName(error));
}

}  // namespace

icu::UnicodeString utf16(std::string_view text) {
    return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

std::string utf8(const icu::UnicodeString& text) {
    std::string bytes;
    return text.toUTF8String(bytes);
}

Pattern::Pattern(std::string_view pattern) {
    UErrorCode error = U_ZERO_ERROR;
    matcher = std::make_unique<icu::RegexMatcher>(utf16(pattern), 0, error);
    check(error);
}

bool Pattern::find(const icu::UnicodeString& text) {
    matcher->reset(text);
    UErrorCode error = U_ZERO_ERROR;
    const bool found = matcher->find(error) != 0;
    check(error);
    return found;
}

std::string Pattern::group(int number) {
    UErrorCode error = U_ZERO_ERROR;
    const icu::UnicodeString text = matcher->group(number, error);
    check(error);
    return utf8(text);
}

}  // namespace clipvane::test
