// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace clipvane {

/// The attributes of XML timelines that the reader uses, under their own names.
enum class XMLAttribute {
    asset,
    duration,
    end,
    highlighted,
    id,
    in,
    lane,
    name,
    number,
    offset,
    out,
    pathurl,
    ref,
    reel,
    src,
    start,
    tcStart,
    timelineStart,
    track,
    uid,  // the last
};

/// The attributes of one element, gone through once. Names are case-sensitive.
class XMLAttributes {
  public:
    /// Names, which are unique, and values in turn, ended by a null pointer, as the XML parser
    /// hands them over. The values must outlive this.
    explicit XMLAttributes(const char* const* namesAndValues);

    /// The value, possibly empty, of an attribute; nothing without one.
    std::optional<std::string_view> find(XMLAttribute attribute) const {
        const char* const value = values[static_cast<std::size_t>(attribute)];
        if (value == nullptr) return std::nullopt;
        return value;
    }

    /// The value of the first of `attributes` that the element has.
    std::optional<std::string_view> firstOf(std::initializer_list<XMLAttribute> attributes) const {
        for (const XMLAttribute attribute : attributes) {
            if (const auto value = find(attribute)) return value;
        }
        return std::nullopt;
    }

  private:
    std::array<const char*, static_cast<std::size_t>(XMLAttribute::uid) + 1> values{};
};

}  // namespace clipvane
