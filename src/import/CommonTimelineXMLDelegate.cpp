// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/CommonTimelineXMLDelegate.h"

#include <algorithm>
#include <utility>

#include "base/Characters.h"
#include "base/Number.h"
#include "import/XMLText.h"
#include "model/FoundEvent.h"

namespace clipvane {
namespace {

void fillIfEmpty(std::string& field, std::string_view text) {
    if (field.empty()) field = text;
}

/// A name that was made up from the element, and gives way to the first real one.
bool isPlaceholderName(std::string_view clipName) {
    return clipName.empty() || clipName.starts_with("clip") || clipName == "Clip";
}

bool isTrue(std::string_view value) {
    return std::ranges::equal(value, std::string_view("true"), {}, asciiLower);
}

}  // namespace

void CommonTimelineXMLDelegate::didStartElement(std::string_view name,
                                                const XMLAttributes& attributes) {
    currentText.clear();
    switch (const XMLElement element = classifyXMLElement(name)) {
        case XMLElement::asset:
        case XMLElement::file:
            startAsset(attributes);
            break;
        case XMLElement::event:
            startEvent(name, attributes);
            break;
        case XMLElement::source:
        case XMLElement::record:
            if (isPending) {
                const bool isSource = element == XMLElement::source;
                setRange(attributes, isSource ? event.sourceIn : event.recordIn,
                         isSource ? event.sourceOut : event.recordOut);
            }
            break;
        case XMLElement::clip:
            startClip(name, attributes);
            break;
        default:
            break;
    }
}

void CommonTimelineXMLDelegate::foundCharacters(std::string_view characters) {
    // Without a pending event nobody will ask for the text.
    if (isPending) currentText += characters;
}

void CommonTimelineXMLDelegate::didEndElement(std::string_view name) {
    if (!isPending) return;
    const XMLElement element = classifyXMLElement(name);
    if (endsEvent(element)) {
        completeEvent();
    } else if (element != XMLElement::other) {
        setField(element);
    }
}

EventList CommonTimelineXMLDelegate::finish() {
    completeEvent();
    return std::exchange(events, {});
}

void CommonTimelineXMLDelegate::startAsset(const XMLAttributes& attributes) {
    const auto id = attributes.firstOf({"id", "uid"});
    if (!id) return;
    assetNames[std::string(*id)] = attributes.firstOf({"name", "src", "pathurl"}).value_or(*id);
}

void CommonTimelineXMLDelegate::startEvent(std::string_view name, const XMLAttributes& attributes) {
    beginEvent(name);
    if (const auto number = attributes.find("number")) {
        event.eventNumber = cleanedXMLText(*number).view();
    }
    event.highlighted = isTrue(attributes.find("highlighted").value_or(""));
}

void CommonTimelineXMLDelegate::startClip(std::string_view name, const XMLAttributes& attributes) {
    const std::string_view reference = attributes.firstOf({"ref", "asset", "id"}).value_or("");
    const auto displayName = [&]() -> std::string_view {
        if (const auto value = attributes.find("name")) return *value;
        if (const auto found = assetNames.find(reference); found != assetNames.end()) {
            effort += found->second.size();
            return found->second;
        }
        return attributes.find("lane").value_or(name);
    };
    const std::string_view start = attributes.firstOf({"start", "tcStart", "in"}).value_or("");
    const std::string_view offset =
        attributes.firstOf({"offset", "timelineStart", "start"}).value_or("");
    const std::string_view duration = attributes.find("duration").value_or("");
    const std::string_view reel =
        reference.empty() ? attributes.firstOf({"reel", "src"}).value_or("") : reference;
    const auto out = attributes.find("out");
    const auto recordEnd = attributes.find("end");

    beginEvent(name);
    event.clipName = cleanedXMLText(displayName()).view();
    event.sourceIn = timing(start);
    event.recordIn = timing(offset);
    event.reelID = cleanedXMLText(reel).view();
    event.sourceOut = out ? timing(*out) : end(event.sourceIn, duration);
    event.recordOut = recordEnd ? timing(*recordEnd) : end(event.recordIn, duration);
    event.track = cleanedXMLText(attributes.firstOf({"lane", "track"}).value_or(name)).view();
}

void CommonTimelineXMLDelegate::setRange(const XMLAttributes& attributes, std::string& in,
                                         std::string& out) const {
    if (const auto value = attributes.find("in")) in = timing(*value);
    if (const auto value = attributes.find("out")) out = timing(*value);
}

void CommonTimelineXMLDelegate::setField(XMLElement element) {
    effort += currentText.size();
    const ViewOrCopy cleaned = cleanedXMLText(currentText);
    const std::string_view text = cleaned.view();
    if (text.empty()) return;
    const auto fillTime = [&](std::string& field) {
        if (field.empty()) field = timing(text);
    };
    switch (element) {
        case XMLElement::clipName:
            event.clipName = text;
            break;
        case XMLElement::name:
            if (isPlaceholderName(event.clipName)) event.clipName = text;
            break;
        case XMLElement::reel:
        case XMLElement::file:
            fillIfEmpty(event.reelID, text);
            break;
        case XMLElement::track:
            fillIfEmpty(event.track, text);
            break;
        case XMLElement::comments:
            event.comments = text;
            break;
        case XMLElement::in:
            fillTime(event.sourceIn);
            break;
        case XMLElement::out:
            fillTime(event.sourceOut);
            break;
        case XMLElement::start:
            fillTime(event.recordIn);
            break;
        case XMLElement::end:
            fillTime(event.recordOut);
            break;
        case XMLElement::duration:
            if (event.sourceOut.empty()) event.sourceOut = end(event.sourceIn, text);
            if (event.recordOut.empty()) event.recordOut = end(event.recordIn, text);
            break;
        default:
            break;
    }
}

/// A new event, numbered by its position. The one before it ends, whether it was closed or not.
void CommonTimelineXMLDelegate::beginEvent(std::string_view name) {
    completeEvent();
    isPending = true;
    event = {};
    appendInteger(event.eventNumber, static_cast<std::int64_t>(events.size() + 1));
    event.rawText = name;
}

void CommonTimelineXMLDelegate::completeEvent() {
    if (!isPending) return;
    isPending = false;
    events.append({.eventNumber = event.eventNumber,
                   .clipName = event.clipName,
                   .reelID = event.reelID,
                   .track = event.track,
                   .timecodes = {event.sourceIn, event.sourceOut, event.recordIn, event.recordOut},
                   .format = "XML",
                   .comments = event.comments,
                   .highlighted = event.highlighted,
                   .lines = events.keepCopy(event.rawText)});
}

/// The timecode `duration` after `start`, or empty text when either has no frame count.
std::string CommonTimelineXMLDelegate::end(std::string_view start,
                                           std::string_view duration) const {
    const auto first = frames(start);
    const auto count = first ? frames(duration) : std::nullopt;
    return count ? timecode(addChecked(*first, *count)) : std::string();
}

}  // namespace clipvane
