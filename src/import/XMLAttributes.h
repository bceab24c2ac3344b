// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <initializer_list>
#include <optional>
#include <string_view>

namespace clipvane {

/// The attributes of one element: a view of names and values in turn, ended by a null pointer, as
/// the XML parser hands them over. Names are unique and case-sensitive.
class XMLAttributes {
  public:
    explicit XMLAttributes(const char* const* namesAndValues) : namesAndValues(namesAndValues) {}

    bool empty() const { return *namesAndValues == nullptr; }

    /// The value, possibly empty, of the attribute called `name`; nothing without one.
    std::optional<std::string_view> find(std::string_view name) const {
        for (const char* const* pair = namesAndValues; *pair != nullptr; pair += 2) {
            if (isCalled(pair[0], name)) return pair[1];
        }
        return std::nullopt;
    }

    /// The value of the first of `names` that the element has.
    std::optional<std::string_view> firstOf(std::initializer_list<std::string_view> names) const {
        for (const std::string_view name : names) {
            if (const auto value = find(name)) return value;
        }
        return std::nullopt;
    }

  private:
    /// Most names differ in their first letter.
    static bool isCalled(const char* attribute, std::string_view name) {
        return attribute[0] == name[0] && name == attribute;
    }

    const char* const* namesAndValues;
};

}  // namespace clipvane
