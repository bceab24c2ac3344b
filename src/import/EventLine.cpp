#include "import/EventLine.h"

#include "base/Characters.h"
#include "import/Scan.h"

namespace clipvane {
namespace {

bool isColumnCharacter(char32_t c) {
    return !isWhiteSpace(c);
}

bool takeSeparator(std::string_view& rest) {
    return !takeWhile(rest, isWhiteSpace).empty();
}

bool takeDigit(std::string_view& rest) {
    if (rest.empty()) return false;
    const CodePoint first = firstCodePoint(rest);
    if (!isDecimalDigit(first.value)) return false;
    rest.remove_prefix(first.length);
    return true;
}

bool takeTimecode(std::string_view& rest, std::string_view& timecode) {
    const std::string_view start = rest;
    for (int field = 0; field < 4; ++field) {
        if (field > 0 && !takeCharacter(rest, ':')) return false;
        if (!takeDigit(rest) || !takeDigit(rest)) return false;
    }
    timecode = start.substr(0, start.size() - rest.size());
    return true;
}

/// A column of digits, which a timecode is not: its first field ends at a colon.
void takeDuration(std::string_view& rest) {
    std::string_view after = rest;
    if (!takeWhile(after, isDecimalDigit).empty() && takeSeparator(after)) rest = after;
}

}  // namespace

// Every column is a run that cannot contain what follows it, so the longest run is the only one
// that can match: one pass decides, without going back.
std::optional<EventLine> matchEventLine(std::string_view line) {
    std::string_view rest = line;
    EventLine columns;

    takeWhile(rest, isWhiteSpace);
    columns.number = takeWhile(rest, isDecimalDigit);
    if (columns.number.empty() || !takeSeparator(rest)) return std::nullopt;
    columns.reel = takeWhile(rest, isColumnCharacter);
    if (!takeSeparator(rest)) return std::nullopt;
    columns.track = takeWhile(rest, isColumnCharacter);
    if (!takeSeparator(rest)) return std::nullopt;
    takeWhile(rest, isColumnCharacter);  // the edit type
    if (!takeSeparator(rest)) return std::nullopt;
    takeDuration(rest);

    if (!takeTimecode(rest, columns.sourceIn) || !takeSeparator(rest)) return std::nullopt;
    if (!takeTimecode(rest, columns.sourceOut) || !takeSeparator(rest)) return std::nullopt;
    if (!takeTimecode(rest, columns.recordIn) || !takeSeparator(rest)) return std::nullopt;
    if (!takeTimecode(rest, columns.recordOut)) return std::nullopt;
    return columns;
}

}  // namespace clipvane
