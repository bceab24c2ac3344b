// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/DiffLines.h"

#include <array>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <vector>

#include "base/Number.h"

namespace clipvane::diff {
namespace {

using Count = std::optional<std::int64_t>;
using nlohmann::ordered_json;

/// What a line is of: an event of NEW, one of OLD, or black.
struct Change {
    const Compared& compared;
    const ReportLine& line;
    const NewEvent* newEvent = nullptr;
    const OldEvent* oldEvent = nullptr;  ///< without a partner, or the partner

    bool isBlack() const { return line.kind == ReportLine::Kind::black; }
    /// Black has none.
    Words words() const {
        if (newEvent != nullptr) return newEvent->words;
        return oldEvent != nullptr ? oldEvent->words : Words();
    }

    /// A count of an event of NEW, where it bears the word.
    Count where(Word word, std::int64_t NewEvent::*count) const {
        if (newEvent == nullptr || !newEvent->words.has(word)) return std::nullopt;
        return newEvent->*count;
    }
    Count where(Word word, std::uint32_t NewEvent::*count) const {
        if (newEvent == nullptr || !newEvent->words.has(word)) return std::nullopt;
        return newEvent->*count;
    }
    Count ofNew(std::int64_t NewEvent::*count) const {
        return newEvent != nullptr ? Count(newEvent->*count) : std::nullopt;
    }
    Count ofOld(std::int64_t OldEvent::*count) const {
        return oldEvent != nullptr ? Count(oldEvent->*count) : std::nullopt;
    }
};

struct CountField {
    std::string_view name;
    Count (*value)(const Change& change);
};

Count rowNumber(std::uint32_t row) {
    return std::int64_t{row} + 1;
}

Count shift(const Change& c) {
    const bool hasShift = c.newEvent != nullptr && c.newEvent->partner;
    return hasShift ? Count(c.newEvent->shift) : std::nullopt;
}

Count inPlaceOf(const Change& c) {
    if (c.newEvent == nullptr || !c.newEvent->inPlaceOf) return std::nullopt;
    return rowNumber(c.compared.diff.oldEvents[*c.newEvent->inPlaceOf].row);
}

constexpr std::array countFields{
    CountField{"oldRow",
               [](const Change& c) { return c.oldEvent ? rowNumber(c.oldEvent->row) : Count(); }},
    CountField{"newRow",
               [](const Change& c) { return c.newEvent ? rowNumber(c.newEvent->row) : Count(); }},
    CountField{"inPlaceOf", inPlaceOf},
    CountField{"head", [](const Change& c) { return c.where(Word::trimmed, &NewEvent::head); }},
    CountField{"tail", [](const Change& c) { return c.where(Word::trimmed, &NewEvent::tail); }},
    CountField{"inside", [](const Change& c) { return c.where(Word::trimmed, &NewEvent::inside); }},
    CountField{"sourceShift",
               [](const Change& c) { return c.where(Word::slipped, &NewEvent::sourceShift); }},
    CountField{"piece", [](const Change& c) { return c.where(Word::split, &NewEvent::piece); }},
    CountField{"pieces", [](const Change& c) { return c.where(Word::split, &NewEvent::pieces); }},
    CountField{"parts", [](const Change& c) { return c.where(Word::joined, &NewEvent::parts); }},
    CountField{"shift", shift},
    CountField{"newFrames", [](const Change& c) { return c.ofNew(&NewEvent::newFrames); }},
    CountField{"againFrames", [](const Change& c) { return c.ofNew(&NewEvent::againFrames); }},
    CountField{"elsewhereFrames",
               [](const Change& c) { return c.ofNew(&NewEvent::elsewhereFrames); }},
    CountField{"goneFrames", [](const Change& c) { return c.ofOld(&OldEvent::goneFrames); }},
    CountField{"fewerFrames", [](const Change& c) { return c.ofOld(&OldEvent::fewerFrames); }},
    CountField{"longer",
               [](const Change& c) { return c.isBlack() ? Count(c.line.longer) : Count(); }},
};

constexpr std::array<std::string_view, 8> textNames{
    "Event", "Reel", "Name", "Track", "SourceIn", "SourceOut", "RecordIn", "RecordOut"};

using Texts = std::array<std::string, textNames.size()>;

Texts textsOf(const CutList& list, std::uint32_t row) {
    const auto& event = list.events[row];
    return {std::string(event.eventNumber), std::string(event.reelID),
            std::string(event.clipName),    std::string(event.track),
            std::string(event.sourceIn),    std::string(event.sourceOut),
            std::string(event.recordIn),    std::string(event.recordOut)};
}

std::optional<Texts> oldTexts(const Change& change) {
    if (change.oldEvent == nullptr) return std::nullopt;
    return textsOf(change.compared.oldList, change.oldEvent->row);
}

std::optional<Texts> newTexts(const Change& change) {
    if (change.newEvent == nullptr) return std::nullopt;
    return textsOf(change.compared.newList, change.newEvent->row);
}

std::vector<std::string> changeTexts(const Change& change) {
    if (change.isBlack()) return {"black"};
    std::vector<std::string> texts;
    change.words().forEach(
        [&](Word word) { texts.emplace_back(wordTexts[static_cast<std::size_t>(word)]); });
    return texts;
}

/// Calls `take` with the change of each line of the report.
template <class Take>
void forEachChange(const Compared& compared, Take take) {
    for (const ReportLine& line : compared.diff.report) {
        Change change{compared, line};
        if (line.kind == ReportLine::Kind::ofOld) {
            change.oldEvent = &compared.diff.oldEvents[line.event];
        } else if (line.kind == ReportLine::Kind::event) {
            change.newEvent = &compared.diff.newEvents[line.event];
            if (const auto partner = change.newEvent->partner) {
                change.oldEvent = &compared.diff.oldEvents[*partner];
            }
        }
        take(change);
    }
}

void appendField(std::string& text, std::string_view field) {
    if (!text.empty() && text.back() != '\n') text += ',';
    text += '"';
    for (const char c : field) {
        if (c == '"') text += '"';
        text += c == '\n' ? ' ' : c;
    }
    text += '"';
}

void appendFields(std::string& text, const std::optional<Texts>& fields) {
    for (std::size_t i = 0; i < textNames.size(); ++i) {
        appendField(text, fields ? std::string_view((*fields)[i]) : std::string_view());
    }
}

void appendLine(std::string& text, const Change& change) {
    std::string words;
    for (const std::string& word : changeTexts(change)) words += (words.empty() ? "" : " ") + word;
    appendField(text, words);
    appendField(text, change.compared.diff.tracks[change.line.track]);
    for (const CountField& field : countFields) {
        std::string count;
        if (const auto value = field.value(change)) appendInteger(count, *value);
        appendField(text, count);
    }
    appendFields(text, oldTexts(change));
    appendFields(text, newTexts(change));
    text += '\n';
}

std::string jsonText(const ordered_json& value) {
    return value.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + '\n';
}

void addTexts(ordered_json& object, const std::string& side, const std::optional<Texts>& fields) {
    for (std::size_t i = 0; i < textNames.size(); ++i) {
        ordered_json& value = object[side + std::string(textNames[i])];
        if (fields) value = (*fields)[i];
    }
}

ordered_json sumsObject(const Sums& sums) {
    ordered_json events;
    for (std::size_t i = 0; i < wordCount; ++i) events[std::string(wordTexts[i])] = sums.events[i];
    return {{"events", events},     {"newEvents", sums.newEvents}, {"oldEvents", sums.oldEvents},
            {"kept", sums.kept},    {"keptInOld", sums.keptInOld}, {"new", sums.added},
            {"again", sums.again},  {"gone", sums.gone},           {"fewer", sums.fewer},
            {"longer", sums.longer}};
}

}  // namespace

std::string csvLines(const Compared& compared) {
    std::string text;
    appendField(text, "change");
    appendField(text, "track");
    for (const CountField& field : countFields) appendField(text, field.name);
    for (const char* const side : {"old", "new"}) {
        for (const std::string_view name : textNames) appendField(text, side + std::string(name));
    }
    text += '\n';
    forEachChange(compared, [&](const Change& change) { appendLine(text, change); });
    return text;
}

std::string jsonLines(const Compared& compared) {
    std::string text;
    forEachChange(compared, [&](const Change& change) {
        ordered_json object;
        object["change"] = changeTexts(change);
        object["track"] = compared.diff.tracks[change.line.track];
        for (const CountField& field : countFields) {
            ordered_json& value = object[std::string(field.name)];
            if (const auto count = field.value(change)) value = *count;
        }
        addTexts(object, "old", oldTexts(change));
        addTexts(object, "new", newTexts(change));
        text += jsonText(object);
    });
    return text + jsonText({{"sums", sumsObject(compared.diff.sums)}});
}

}  // namespace clipvane::diff
