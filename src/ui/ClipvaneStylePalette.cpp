// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/ClipvaneStyle.h"
#include "ui/Colours.h"

namespace clipvane {

QPalette ClipvaneStyle::standardPalette() const {
    QPalette palette(colours::text, colours::control, colours::controlHover,
                     colours::controlPressed, colours::controlBottom, colours::text, colours::white,
                     colours::table, colours::window);
    palette.setColor(QPalette::AlternateBase, colours::tableAlternate);
    palette.setColor(QPalette::ToolTipBase, colours::menu);
    palette.setColor(QPalette::ToolTipText, colours::text);
    palette.setColor(QPalette::PlaceholderText, colours::secondaryText);
    palette.setColor(QPalette::Highlight, colours::accent);
    palette.setColor(QPalette::HighlightedText, colours::white);
    palette.setColor(QPalette::Link, colours::focusRing);
    palette.setColor(QPalette::LinkVisited, colours::focusRing);
    palette.setColor(QPalette::Shadow, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colours::disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, colours::disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours::controlHover);
    return palette;
}

}  // namespace clipvane
