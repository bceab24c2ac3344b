// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <map>

#include "cli/Finding.h"
#include "import/XMLReader.h"

namespace clipvane::cli {

/// Collects what a document tells while it is read: elements that hold times or media and are no
/// events, by name, and where it breaks off.
class XMLFindings : public XMLWatcher {
  public:
    void element(std::string_view name, bool hasAttributes, std::size_t line) override;
    void brokeOff(std::size_t line, std::size_t column, std::string_view reason) override;

    /// All that was found, to be asked for once.
    Findings take();

  private:
    struct Tally {
        std::size_t count = 0;
        std::size_t firstLine = 0;
    };

    std::map<std::size_t, Tally> tallies;  ///< by the element's place among those that are watched
    Findings found;
};

}  // namespace clipvane::cli
