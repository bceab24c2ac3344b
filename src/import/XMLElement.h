// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string_view>

namespace clipvane {

/// What an element of an XML timeline means to the reader. Upper and lower case in element names
/// are the same.
enum class XMLElement : std::uint8_t {
    other,
    // Elements that name the media which clips refer to.
    asset,  // asset, media
    file,   // also gives a reel
    // Elements that are events, and their parts.
    event,
    source,
    record,
    clip,       // clipitem, clip, asset-clip, sync-clip, mc-clip, gap, title
    container,  // sequence, project
    // Elements whose text fills a field.
    clipName,
    name,
    reel,  // reelid, reel, reelname, masterclipid
    track,
    comments,  // comments, comment
    in,
    out,
    start,
    end,
    duration,
};

/// The meaning of the element called `name` (UTF-8, as written).
XMLElement classifyXMLElement(std::string_view name);

/// Whether the element's text fills a field.
constexpr bool fillsField(XMLElement element) {
    return element == XMLElement::file || element >= XMLElement::clipName;
}

/// Whether the element's end tag ends the pending event.
constexpr bool endsEvent(XMLElement element) {
    return element == XMLElement::event || element == XMLElement::clip ||
           element == XMLElement::container;
}

}  // namespace clipvane
