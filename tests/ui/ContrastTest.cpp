// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "ui/ColourMixing.h"
#include "ui/Colours.h"
#include "ui/EventColumn.h"

namespace clipvane {
namespace {

using test::contrast;
using test::over;

constexpr double text = 4.5;
constexpr double shape = 3;

const QColor markedRow = over(colours::markedRow, colours::table);

struct Pair {
    const char* what;
    QColor colour;
    QColor ground;
    double least;
};

TEST(Contrast, TextsAndShapes_StandOutFromTheirGround) {
    using namespace colours;
    for (const Pair& pair : {
             Pair{"title", white, window, text},
             Pair{"status line", secondaryText, window, text},
             Pair{"keys", secondaryText, panel, text},
             Pair{"column headers", secondaryText, tableHeader, text},
             Pair{"text of an empty list", emptyLabel, table, text},
             Pair{"invitation in the comments", secondaryText, editor, text},
             Pair{"comments", colours::text, editor, text},
             Pair{"help", white, helpWindow, text},
             Pair{"button", colours::text, control, text},
             Pair{"button under the pointer", colours::text, controlHover, text},
             Pair{"button pressed", colours::text, controlPressed, text},
             Pair{"first button", colours::text, accent, text},
             Pair{"first button under the pointer", colours::text, accentHover, text},
             Pair{"first button pressed", colours::text, accentPressed, text},
             Pair{"menu", colours::text, menu, text},
             Pair{"chosen entry", white, accent, text},
             Pair{"scroll thumb in a panel", scrollThumb, panel, shape},
             Pair{"scroll thumb in the comments", scrollThumb, editor, shape},
             Pair{"scroll thumb in the help", scrollThumb, helpWindow, shape},
             Pair{"scroll thumb in a list of files", scrollThumb, table, shape},
             Pair{"edge of the comments, outside", fieldEdge, panel, shape},
             Pair{"edge of the comments, inside", fieldEdge, editor, shape},
             Pair{"edge of a field in a dialog", fieldEdge, window, shape},
             Pair{"focus ring on the window", focusRing, window, shape},
             Pair{"focus ring in a panel", focusRing, panel, shape},
             Pair{"focus ring on a button", focusRing, control, shape},
             Pair{"ring of a cell on a selected row", focusRing, over(selectedRow, table), shape},
             Pair{"ring of a cell on a selected, marked row", focusRing,
                  over(selectedRow, ::clipvane::markedRow), shape},
             Pair{"check mark", focusRing, menu, shape},
             Pair{"arrows of a pop-up", secondaryText, control, shape},
             Pair{"sign of a notice", white, accentHover, shape},
             Pair{"sign of a warning", window, warning, shape},
         }) {
        EXPECT_GE(contrast(pair.colour, pair.ground), pair.least) << pair.what;
    }
}

TEST(Contrast, Fields_CanBeReadOnEveryRow) {
    for (const EventColumn& column : eventColumns()) {
        for (const QColor& row : {colours::table, colours::tableAlternate, markedRow}) {
            EXPECT_GE(contrast(column.colour, row), text) << column.title << ' ' << row.red();
        }
    }
}

TEST(Contrast, FieldsOfASelectedRow_CanBeReadButForTheRecordTimecodesALittleLess) {
    for (const QColor& row : {colours::table, colours::tableAlternate, markedRow}) {
        const QColor selected = over(colours::selectedRow, row);
        for (const EventColumn& column : eventColumns()) {
            const QColor colour = column.colour == colours::secondaryText
                                      ? colours::secondaryTextOnSelection
                                      : column.colour;
            // Both colours of the record timecodes' are the product's own.
            const double least = colour == colours::recordField ? 4.15 : text;
            EXPECT_GE(contrast(colour, selected), least) << column.title;
        }
    }
}

TEST(Contrast, ReadOnlyFieldsEdge_IsDimmer) {
    EXPECT_LT(contrast(colours::panelEdge, colours::panel),
              contrast(colours::fieldEdge, colours::panel) / 2);
}

}  // namespace
}  // namespace clipvane
