// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace clipvane {

/// A text as it was found, which must outlive this, or a copy of its own where it had to change.
class ViewOrCopy {
  public:
    ViewOrCopy(std::string_view found) : found(found) {}
    ViewOrCopy(std::string changed) : changed(std::move(changed)) {}

    std::string_view view() const { return changed ? std::string_view(*changed) : found; }

  private:
    std::string_view found;
    std::optional<std::string> changed;
};

}  // namespace clipvane
