#pragma once

#include <QColor>
#include <span>
#include <string>

#include "model/TimelineEvent.h"

namespace clipvane {

/// A column of the event list.
struct EventColumn {
    const char* identifier;  ///< the field's name
    const char* title;
    int width;  ///< in logical pixels, at first and at least
    std::string TimelineEvent::*field;
    QColor colour;
};

/// The columns, from the left.
std::span<const EventColumn> eventColumns();

}  // namespace clipvane
