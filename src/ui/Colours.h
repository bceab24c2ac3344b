// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

namespace clipvane::colours {

/// A colour from components in 0...1, in the 256 steps that a screen has.
inline QColor rgb(double red, double green, double blue, double alpha = 1) {
    return {qRound(red * 255), qRound(green * 255), qRound(blue * 255), qRound(alpha * 255)};
}

// Surfaces.
inline const QColor window = rgb(0.07, 0.08, 0.09);
inline const QColor panel = rgb(0.105, 0.115, 0.13);
inline const QColor panelEdge{0x25, 0x28, 0x2d};
inline const QColor helpWindow = rgb(0.08, 0.09, 0.105);
inline const QColor editor = rgb(0.08, 0.1, 0.12);
inline const QColor table{0x13, 0x16, 0x1a};
inline const QColor tableAlternate{0x19, 0x1c, 0x20};
inline const QColor tableGrid{255, 255, 255, 18};
inline const QColor tableHeader{0x1f, 0x22, 0x27};
inline const QColor markedRow = rgb(0.34, 0.27, 0.08, 0.8);
inline const QColor selectedRow = rgb(0.17, 0.33, 0.5, 0.95);

// Texts.
inline const QColor white{255, 255, 255};
inline const QColor text{0xe8, 0xed, 0xf5};
inline const QColor secondaryText{0xa0, 0xaa, 0xb8};
inline const QColor secondaryTextOnSelection{0xc2, 0xca, 0xd6};
inline const QColor detailTitle = rgb(0.95, 0.96, 1.0);
inline const QColor emptyLabel = rgb(0.62, 0.68, 0.76);

// The fields of an event, alike in the list and in the detail panel.
inline const QColor numberField = rgb(0.62, 0.82, 1.0);
inline const QColor clipNameField = rgb(0.97, 0.98, 1.0);
inline const QColor reelField = rgb(0.75, 0.92, 0.7);
inline const QColor sourceField = rgb(1.0, 0.84, 0.52);
inline const QColor recordField = rgb(0.96, 0.65, 0.72);

// Controls.
inline const QColor control{0x2d, 0x32, 0x3b};
inline const QColor controlBottom{0x26, 0x2b, 0x33};
inline const QColor controlHover{0x38, 0x3f, 0x4a};
inline const QColor controlPressed{0x1d, 0x21, 0x28};
inline const QColor controlEdge{0x41, 0x4a, 0x57};
inline const QColor fieldEdge{0x65, 0x71, 0x7f};
inline const QColor accent{0x2f, 0x63, 0x9a};
inline const QColor accentHover{0x33, 0x6d, 0xab};
inline const QColor accentPressed{0x26, 0x51, 0x80};
inline const QColor accentEdge{0x4d, 0x8c, 0xcf};
inline const QColor focusRing{0x6c, 0xb1, 0xff};
inline const QColor menu{0x1d, 0x22, 0x29};
inline const QColor menuEdge{0x3a, 0x42, 0x4e};
inline const QColor scrollThumb{0x65, 0x71, 0x7f};
inline const QColor scrollThumbHover{0x7e, 0x8b, 0x9d};
inline const QColor headerDivider{255, 255, 255, 40};
inline const QColor disabledText{0x62, 0x69, 0x74};
inline const QColor warning{0xe0, 0xa0, 0x30};

}  // namespace clipvane::colours
