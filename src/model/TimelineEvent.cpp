// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "model/TimelineEvent.h"

#include <unicode/unistr.h>
#include <unicode/unorm.h>
#include <unicode/unorm2.h>

#include "base/UTF8.h"

namespace clipvane {
namespace {

bool sameText(const std::string& a, const std::string& b) {
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
    return a.id == b.id && sameText(a.eventNumber, b.eventNumber) &&
           sameText(a.clipName, b.clipName) && sameText(a.reelID, b.reelID) &&
           sameText(a.sourceIn, b.sourceIn) && sameText(a.sourceOut, b.sourceOut) &&
           sameText(a.recordIn, b.recordIn) && sameText(a.recordOut, b.recordOut) &&
           sameText(a.format, b.format) && sameText(a.track, b.track) &&
           sameText(a.comments, b.comments) && a.highlighted == b.highlighted &&
           sameText(a.rawText, b.rawText);
}

}  // namespace clipvane
