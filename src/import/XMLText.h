// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace clipvane {

/// A text from an XML timeline without every "file://", with a blank for every "%20", and without
/// blanks and newlines at both ends; in that order, each in one pass. Most texts need no copy: the
/// original must outlive this.
class CleanedXMLText {
  public:
    explicit CleanedXMLText(std::string_view text);
    CleanedXMLText(const CleanedXMLText&) = delete;
    CleanedXMLText& operator=(const CleanedXMLText&) = delete;

    std::string_view view() const { return cleaned; }

  private:
    std::string storage;  ///< holds the text where something was replaced
    std::string_view cleaned;
};

inline std::string cleanedXMLText(std::string_view text) {
    return std::string(CleanedXMLText(text).view());
}

}  // namespace clipvane
