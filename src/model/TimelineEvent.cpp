// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/TimelineEvent.h>

#include <unicode/unistr.h>
#include <unicode/unorm.h>
#include <unicode/unorm2.h>

#include "base/UTF8.h"

namespace clipvane {
namespace {

/// What is no text.
template <class Value>
bool same(const Value& a, const Value& b) {
    return a == b;
}

bool same(const std::string& a, const std::string& b) {
    if (a == b) return true;
    if (isASCII(a) && isASCII(b)) return false;
    const auto left = icu::UnicodeString::fromUTF8(a);
    const auto right = icu::UnicodeString::fromUTF8(b);
    UErrorCode error = U_ZERO_ERROR;
    const auto order = unorm_compare(left.getBuffer(), left.length(), right.getBuffer(),
                                     right.length(), U_FOLD_CASE_DEFAULT, &error);
    return U_SUCCESS(error) && order == 0;
}

}  // namespace

bool operator==(const TimelineEvent& a, const TimelineEvent& b) {
    bool areEqual = true;
    forEachField([&](const char*, const auto& left,
                     const auto& right) { areEqual = areEqual && same(left, right); },
                 a, b);
    return areEqual;
}

}  // namespace clipvane
