// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <span>
#include <string_view>

#include <clipvane/EventView.h>

namespace clipvane {

/// A column of the event list.
struct EventColumn {
    const char* identifier;  ///< the field's name
    const char* title;
    int width;  ///< in logical pixels, at first and at least
    std::string_view EventView::*field;
    QColor colour;
};

/// The columns, from the left.
std::span<const EventColumn> eventColumns();

}  // namespace clipvane
