#pragma once

#include "commands/Alert.h"

namespace clipvane {

/// The alerts for commands that ran out of memory, made while there is some.
struct NoMemoryAlerts {
    const Alert toOpen{Alert::Style::warning, "Could not open timeline",
                       "There is not enough memory."};
    const Alert toExport{Alert::Style::warning, "Export failed", "There is not enough memory."};
    const Alert toChange{Alert::Style::warning, "Not enough memory",
                         "The action could not be carried out. Nothing was changed."};
    /// The rest of a command whose change is made already.
    const Alert toShow{Alert::Style::warning, "Not enough memory",
                       "The change was made, but the window may not show it."};
};

}  // namespace clipvane
