#pragma once

#include <QColor>
#include <array>
#include <string>

#include "model/TimelineEvent.h"

namespace clipvane {

/// A column of the event list.
struct EventColumn {
    const char* identifier;  ///< the field's name
    const char* title;
    int width;  ///< at first, and at least
    std::string TimelineEvent::*field;
    QColor colour;
};

/// The eight columns, from the left.
const std::array<EventColumn, 8>& eventColumns();

}  // namespace clipvane
