// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/EDLFindings.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "base/Characters.h"
#include "base/UTF8.h"
#include "cli/DropFrame.h"
#include "cli/Encoding.h"
#include "cli/NumberedLines.h"
#include "cli/UnreadLine.h"
#include "import/ClipNameComment.h"
#include "import/EventLine.h"
#include "import/Scan.h"

namespace clipvane::cli {
namespace {

using Weight = Finding::Weight;

/// Lines of one kind: how many, and the first.
struct Tally {
    std::size_t count = 0;
    std::size_t first = 0;

    void add(std::size_t line) {
        if (count++ == 0) first = line;
    }
};

/// "1 comment is", "2 comments are".
std::string countedAs(std::size_t count, const std::string& one, const std::string& several) {
    return std::to_string(count) + " " + (count == 1 ? one + " is" : several + " are");
}

std::string_view withoutBlanks(std::string_view line) {
    takeWhile(line, isWhiteSpace);
    return line;
}

/// In upper or lower case; `word` is in lower case.
bool beginsWith(std::string_view line, std::string_view word) {
    return std::ranges::equal(line.substr(0, word.size()), word, {}, asciiLower);
}

/// Walks through the lines as the reader does.
class LineWalk {
  public:
    explicit LineWalk(std::string_view text) : text(text) {}

    Findings findings() {
        NumberedLines lines(text);
        while (const auto line = lines.next()) look(line->number, line->text);
        tellSkipped("skipped-title", titles, "title", "titles");
        tellSkipped("skipped-fcm", frameCodes, "FCM line", "FCM lines");
        tellSkipped("skipped-m2", motions, "M2 line", "M2 lines");
        tellSkipped("skipped-comment", comments, "comment that belongs to no event",
                    "comments that belong to no event");
        tellSkipped("skipped-blank", blanks, "blank line", "blank lines");
        tellSkipped("skipped-line", others, "other line", "other lines");
        if (dropFrame.count > 0) {
            tell("drop-frame", Weight::suspicious, dropFrame.first,
                 "FCM: DROP FRAME, but frames are counted without dropping: a duration across a "
                 "minute is two frames too long");
        }
        return std::move(found);
    }

  private:
    void look(std::size_t number, std::string_view line) {
        if (matchEventLine(line)) {
            hasEvent = true;
        } else if (number == 1 && line.starts_with(byteOrderMark) &&
                   matchEventLine(line.substr(byteOrderMark.size()))) {
            tell("hidden-event", Weight::suspicious, number,
                 "a byte-order mark hides this event: " + std::string(line));
        } else {
            lookAtOther(number, line);
        }
    }

    void lookAtOther(std::size_t number, std::string_view line) {
        const std::string_view content = withoutBlanks(
            number == 1 && line.starts_with(byteOrderMark) ? line.substr(byteOrderMark.size())
                                                           : line);
        const bool isComment = content.starts_with('*') || clipNameComment(line).has_value();
        if (isComment) {
            if (!hasEvent) comments.add(number);
            return;
        }
        if (const std::string reason = whyUnread(content); !reason.empty()) {
            tell("unread-event", Weight::suspicious, number,
                 "no event is read, because of " + reason + ": " +
                     std::string(trimBlanksAndNewlines(content)));
            return;
        }
        if (frameCodeModeOfLine(content) == FrameCodeMode::drop) dropFrame.add(number);
        kindOf(content).add(number);
    }

    Tally& kindOf(std::string_view content) {
        if (content.empty()) return blanks;
        if (beginsWith(content, "fcm")) return frameCodes;
        if (beginsWith(content, "m2")) return motions;
        return beginsWith(content, "title") ? titles : others;
    }

    void tell(std::string kind, Weight weight, std::size_t line, std::string sentence) {
        found.push_back({std::move(kind), weight, line, std::nullopt, std::move(sentence)});
    }

    void tellSkipped(const std::string& kind, const Tally& tally, const std::string& one,
                     const std::string& several) {
        if (tally.count == 0) return;
        tell(kind, Weight::note, tally.first, countedAs(tally.count, one, several) + " skipped");
    }

    std::string_view text;
    Findings found;
    bool hasEvent = false;
    Tally titles, frameCodes, motions, comments, blanks, others, dropFrame;
};

/// The line in which the byte at `position` stands.
std::size_t lineAt(std::string_view text, std::size_t position) {
    NumberedLines lines(text.substr(0, position));
    std::size_t number = 0;
    while (const auto line = lines.next()) number = line->number;
    const bool isAtLineStart =
        position == 0 || text[position - 1] == '\n' || text[position - 1] == '\r';
    return isAtLineStart ? number + 1 : number;
}

}  // namespace

Findings edlFindings(std::string_view bytes) {
    if (isUTF16(bytes)) {
        return {{"utf-16", Weight::suspicious, std::nullopt, std::nullopt,
                 "it is UTF-16, and an EDL is read as UTF-8"}};
    }
    const std::size_t valid = validUTF8Prefix(bytes);
    if (valid == bytes.size()) return LineWalk(bytes).findings();
    const std::string text = replaceInvalidUTF8(bytes);
    Findings found = LineWalk(text).findings();
    found.push_back({"invalid-utf-8", Weight::suspicious, lineAt(bytes, valid), std::nullopt,
                     "from this line on not all is UTF-8; what is not is read as U+FFFD"});
    return found;
}

}  // namespace clipvane::cli
