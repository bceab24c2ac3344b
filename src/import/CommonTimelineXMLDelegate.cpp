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

using Attribute = XMLAttribute;

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

void CommonTimelineXMLDelegate::didStartElement(XMLElement element, std::string_view name,
                                                const char* const* attributes) {
    currentText.clear();
    switch (element) {
        case XMLElement::asset:
        case XMLElement::file:
            startAsset(XMLAttributes(attributes));
            break;
        case XMLElement::event:
            startEvent(name, XMLAttributes(attributes));
            break;
        case XMLElement::source:
            if (event) setRange(XMLAttributes(attributes), event->sourceIn, event->sourceOut);
            break;
        case XMLElement::record:
            if (event) setRange(XMLAttributes(attributes), event->recordIn, event->recordOut);
            break;
        case XMLElement::clip:
            startClip(name, XMLAttributes(attributes));
            break;
        default:
            break;
    }
    if (event && fillsField(element)) ++openFields;
}

void CommonTimelineXMLDelegate::foundCharacters(std::string_view characters) {
    if (awaitsCharacters()) currentText.put(characters);
}

void CommonTimelineXMLDelegate::didEndElement(XMLElement element) {
    if (!event) return;
    if (endsEvent(element)) {
        completeEvent();
    } else if (fillsField(element)) {
        setField(element);
        if (openFields > 0) --openFields;
    }
}

EventList CommonTimelineXMLDelegate::finish() {
    completeEvent();
    return std::exchange(events, {});
}

void CommonTimelineXMLDelegate::startAsset(const XMLAttributes& attributes) {
    const auto id = attributes.firstOf({Attribute::id, Attribute::uid});
    if (!id) return;
    assetNames[std::string(*id)] =
        attributes.firstOf({Attribute::name, Attribute::src, Attribute::pathurl}).value_or(*id);
}

void CommonTimelineXMLDelegate::startEvent(std::string_view name, const XMLAttributes& attributes) {
    beginEvent(name);
    if (const auto number = attributes.find(Attribute::number)) {
        event->eventNumber = cleanedXMLText(*number).view();
    }
    event->highlighted = isTrue(attributes.find(Attribute::highlighted).value_or(""));
}

void CommonTimelineXMLDelegate::startClip(std::string_view name, const XMLAttributes& attributes) {
    const std::string_view reference =
        attributes.firstOf({Attribute::ref, Attribute::asset, Attribute::id}).value_or("");
    const auto displayName = [&]() -> std::string_view {
        if (const auto value = attributes.find(Attribute::name)) return *value;
        if (const auto found = assetNames.find(reference); found != assetNames.end()) {
            effort += found->second.size();
            return found->second;
        }
        return attributes.find(Attribute::lane).value_or(name);
    };
    const std::string_view start =
        attributes.firstOf({Attribute::start, Attribute::tcStart, Attribute::in}).value_or("");
    const std::string_view offset =
        attributes.firstOf({Attribute::offset, Attribute::timelineStart, Attribute::start})
            .value_or("");
    const std::string_view duration = attributes.find(Attribute::duration).value_or("");
    const std::string_view reel =
        reference.empty() ? attributes.firstOf({Attribute::reel, Attribute::src}).value_or("")
                          : reference;
    const auto out = attributes.find(Attribute::out);
    const auto recordEnd = attributes.find(Attribute::end);

    beginEvent(name);
    event->clipName = cleanedXMLText(displayName()).view();
    event->sourceIn = time(start);
    event->recordIn = time(offset);
    event->reelID = cleanedXMLText(reel).view();
    event->sourceOut = out ? time(*out) : end(event->sourceIn, duration);
    event->recordOut = recordEnd ? time(*recordEnd) : end(event->recordIn, duration);
    event->track =
        cleanedXMLText(attributes.firstOf({Attribute::lane, Attribute::track}).value_or(name))
            .view();
}

void CommonTimelineXMLDelegate::setRange(const XMLAttributes& attributes, XMLTime& in,
                                         XMLTime& out) const {
    if (const auto value = attributes.find(Attribute::in)) in = time(*value);
    if (const auto value = attributes.find(Attribute::out)) out = time(*value);
}

void CommonTimelineXMLDelegate::setField(XMLElement element) {
    effort += currentText.size();
    const ViewOrCopy cleaned = cleanedXMLText(currentText.view());
    const std::string_view text = cleaned.view();
    if (text.empty()) return;
    const auto fillTime = [&](XMLTime& field) {
        if (field.isEmpty()) field = time(text);
    };
    switch (element) {
        case XMLElement::clipName:
            event->clipName = text;
            break;
        case XMLElement::name:
            if (isPlaceholderName(event->clipName)) event->clipName = text;
            break;
        case XMLElement::reel:
        case XMLElement::file:
            fillIfEmpty(event->reelID, text);
            break;
        case XMLElement::track:
            fillIfEmpty(event->track, text);
            break;
        case XMLElement::comments:
            event->comments = text;
            break;
        case XMLElement::in:
            fillTime(event->sourceIn);
            break;
        case XMLElement::out:
            fillTime(event->sourceOut);
            break;
        case XMLElement::start:
            fillTime(event->recordIn);
            break;
        case XMLElement::end:
            fillTime(event->recordOut);
            break;
        case XMLElement::duration:
            if (event->sourceOut.isEmpty()) event->sourceOut = end(event->sourceIn, text);
            if (event->recordOut.isEmpty()) event->recordOut = end(event->recordIn, text);
            break;
        default:
            break;
    }
}

/// A new event, numbered by its position. The one before it ends, whether it was closed or not.
void CommonTimelineXMLDelegate::beginEvent(std::string_view name) {
    completeEvent();
    event.emplace();
    event->elementName = name;
    appendInteger(event->eventNumber, static_cast<std::int64_t>(events.size() + 1));
}

void CommonTimelineXMLDelegate::completeEvent() {
    if (!event) return;
    events.append({.eventNumber = event->eventNumber,
                   .clipName = event->clipName,
                   .reelID = event->reelID,
                   .track = event->track,
                   .timecodes = {event->sourceIn.found(), event->sourceOut.found(),
                                 event->recordIn.found(), event->recordOut.found()},
                   .format = "XML",
                   .comments = event->comments,
                   .highlighted = event->highlighted,
                   .lines = events.keepCopy(event->elementName)});
    event.reset();
    openFields = 0;
}

/// The timecode `duration` after `start`, or empty text when either has no frame count.
XMLTime CommonTimelineXMLDelegate::end(const XMLTime& start, std::string_view duration) const {
    const auto first = start.frames(fps);
    const auto count = first ? xmlFrames(duration, fps) : std::nullopt;
    return count ? XMLTime(addChecked(*first, *count), fps) : XMLTime();
}

}  // namespace clipvane
