// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace clipvane {

/// What a modal alert tells the user. Its one button reads "OK".
struct Alert {
    enum class Style { informational, warning };

    Style style = Style::informational;
    std::string message;      ///< the headline
    std::string information;  ///< the sentence below it

    bool operator==(const Alert&) const = default;
};

}  // namespace clipvane
