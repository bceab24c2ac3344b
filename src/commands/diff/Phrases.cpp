// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Phrases.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "base/Number.h"

namespace clipvane::diff {
namespace {

std::string number(std::int64_t value) {
    std::string text;
    appendInteger(text, value);
    return text;
}

/// "10 longer" or "10 shorter", and the like.
std::string amount(std::int64_t value, std::string_view more, std::string_view less) {
    const bool isLess = value < 0;
    return number(isLess ? subtractChecked(0, value) : value) + ' ' +
           std::string(isLess ? less : more);
}

std::string lengthened(std::int64_t value) {
    return amount(value, "longer", "shorter");
}

std::string moved(std::int64_t value) {
    return amount(value, "later", "earlier");
}

std::string joined(const std::vector<std::string>& parts, std::string_view between) {
    std::string text;
    for (const std::string& part : parts) {
        if (!text.empty()) text += between;
        text += part;
    }
    return text;
}

std::string trimPhrase(const NewEvent& event) {
    std::vector<std::string> parts;
    if (event.head != 0) parts.push_back("head " + lengthened(event.head));
    if (event.tail != 0) parts.push_back("tail " + lengthened(event.tail));
    if (event.inside != 0) parts.push_back("inside " + lengthened(event.inside));
    return "trimmed: " + joined(parts, ", ");
}

/// Source frames in record frames: "100 in 50".
std::string speed(const Times& times) {
    return number(subtractChecked(times.sourceOut, times.sourceIn)) + " in " +
           number(subtractChecked(times.recordOut, times.recordIn));
}

/// The frames that a trim has added.
std::int64_t trimmedLonger(const NewEvent& event) {
    std::int64_t longer = 0;
    for (const std::int64_t trim : {event.head, event.tail, event.inside}) {
        longer = addChecked(longer, std::max<std::int64_t>(trim, 0));
    }
    return longer;
}

/// How many of its frames are new, again or elsewhere, where the words do not tell.
std::vector<std::string> framePhrases(const NewEvent& event) {
    const std::int64_t frames = event.times.recordOut - event.times.recordIn;
    const bool isTold = event.words.has(Word::added)   ? event.newFrames == frames
                        : event.words.has(Word::again) ? event.againFrames == frames
                        : event.words.has(Word::retimed)
                            ? event.newFrames == frames
                            : event.newFrames == trimmedLonger(event) && event.againFrames == 0 &&
                                  event.elsewhereFrames == 0;
    std::vector<std::string> parts;
    if (isTold) return parts;
    if (event.newFrames != 0) parts.push_back(number(event.newFrames) + " frames new");
    if (event.againFrames != 0) parts.push_back(number(event.againFrames) + " frames again");
    if (event.elsewhereFrames != 0) {
        parts.push_back(number(event.elsewhereFrames) + " frames from elsewhere in OLD");
    }
    return parts;
}

std::string trackPhrase(const NewEvent& event, const Compared& compared) {
    const auto& tracks = compared.diff.tracks;
    std::string text = "track " + tracks[compared.diff.oldEvents[*event.partner].track] + " to " +
                       tracks[event.track];
    if (event.shift != 0) text += ", " + moved(event.shift);
    return text;
}

std::string renamePhrase(const NewEvent& event, const Compared& compared) {
    const std::uint32_t oldRow = compared.diff.oldEvents[*event.partner].row;
    const auto& oldEvent = compared.oldList.events[oldRow];
    const auto& newEvent = compared.newList.events[event.row];
    return "renamed: " + std::string(oldEvent.clipName) + " to " + std::string(newEvent.clipName);
}

}  // namespace

std::string phraseOf(const NewEvent& event, const Compared& compared) {
    const auto has = [&](Word word) { return event.words.has(word); };
    if (has(Word::notCompared)) return "not compared";
    std::vector<std::string> parts;
    if (has(Word::added)) parts.emplace_back("new");
    if (has(Word::again)) parts.emplace_back("again");
    if (event.inPlaceOf) {
        const std::uint32_t row = compared.diff.oldEvents[*event.inPlaceOf].row;
        parts.back() += ", in place of " + number(std::int64_t{row} + 1);
    }
    if (has(Word::split))
        parts.push_back("split " + number(event.piece) + '/' + number(event.pieces));
    if (has(Word::joined)) parts.push_back("joined from " + number(event.parts));
    if (has(Word::retimed)) {
        parts.push_back("retimed: " + speed(compared.diff.oldEvents[*event.partner].times) +
                        " to " + speed(event.times));
    }
    if (has(Word::slipped)) parts.push_back("slipped: source " + moved(event.sourceShift));
    if (has(Word::trimmed)) parts.push_back(trimPhrase(event));
    if (has(Word::otherTrack)) parts.push_back(trackPhrase(event, compared));
    if (has(Word::moved)) parts.push_back(shiftPhrase(Word::moved, event.shift));
    if (has(Word::shifted)) parts.push_back(shiftPhrase(Word::shifted, event.shift));
    if (has(Word::renamed)) parts.push_back(renamePhrase(event, compared));
    for (std::string& part : framePhrases(event)) parts.push_back(std::move(part));
    return joined(parts, "; ");
}

std::string phraseOf(const OldEvent& event) {
    std::string text;
    event.words.forEach([&](Word word) { text = wordTexts[static_cast<std::size_t>(word)]; });
    return text;
}

std::string blackPhrase(std::int64_t longer) {
    return "black " + lengthened(longer);
}

std::string shiftPhrase(Word word, std::int64_t shift) {
    return std::string(wordTexts[static_cast<std::size_t>(word)]) + ' ' + moved(shift);
}

std::string sumsPhrase(const Sums& sums) {
    std::vector<std::string> events;
    for (std::size_t i = 0; i < wordCount; ++i) {
        const auto word = static_cast<Word>(i);
        if (sums.of(word) == 0) continue;
        const std::string_view text = word == Word::otherTrack ? "on another track" : wordTexts[i];
        events.push_back(number(sums.of(word)) + ' ' + std::string(text));
    }
    if (events.empty()) events.emplace_back("none");
    std::string text = "Events: " + joined(events, ", ");
    text += ". Frames: " + number(sums.kept) + " kept, " + number(sums.added) + " new, " +
            number(sums.again) + " again, " + number(sums.gone) + " gone, " + number(sums.fewer) +
            " fewer. ";
    text += sums.longer == 0 ? "The cut is as long as it was."
                             : "The cut is " + lengthened(sums.longer) + '.';
    return text;
}

}  // namespace clipvane::diff
