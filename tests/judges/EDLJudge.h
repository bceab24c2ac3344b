// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <clipvane/TimelineEvent.h>
#include "judges/Pattern.h"

namespace clipvane::test {

/// The pattern of an event line; the fourth group is the edit type, which is not kept.
inline constexpr std::string_view eventPattern =
    R"(^\s*(\d+)\s+(\S+)\s+(\S+)\s+(\S+)(?:\s+\d+)?\s+(\d{2}:\d{2}:\d{2}:\d{2}))"
    R"(\s+(\d{2}:\d{2}:\d{2}:\d{2})\s+(\d{2}:\d{2}:\d{2}:\d{2})\s+(\d{2}:\d{2}:\d{2}:\d{2}))";

/// `text` without white space and newlines at both ends.
icu::UnicodeString judgedTrimming(const icu::UnicodeString& text);

/// The name that a clip-name comment gives; nothing for any other line.
std::optional<std::string> judgedClipName(const icu::UnicodeString& line);

/// Reads an EDL with ICU's engine. Identifiers stay zero.
class EDLJudge {
  public:
    std::vector<TimelineEvent> read(const icu::UnicodeString& text);

  private:
    TimelineEvent eventOf(const icu::UnicodeString& line);

    Pattern pattern{eventPattern};
};

}  // namespace clipvane::test
