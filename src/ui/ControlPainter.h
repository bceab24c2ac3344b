// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QBrush>
#include <QColor>
#include <QRectF>

class QPainter;
class QStyleOption;

namespace clipvane {

// How the controls look: small rounded shapes with a soft edge, lighter under the pointer, darker
// while pressed, and ringed in blue while the keyboard's focus is on them.

/// A push button, a closed pop-up, or another raised control. `prominent` is the one that Return
/// presses in a dialog.
void paintControl(QPainter& painter, const QStyleOption& option, bool prominent);

/// A field to type in, or the frame of a list.
void paintField(QPainter& painter, const QStyleOption& option, const QColor& fill,
                const QColor& edge);

/// A rounded rectangle whose edge, one pixel wide, lies inside `rect`.
void paintBox(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill,
              const QColor& edge);

/// The blue ring, two pixels wide, inside `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius);

/// The arrows at the right end of a closed pop-up.
void paintPopupArrows(QPainter& painter, const QRectF& rect, const QColor& colour);

/// The mark before the chosen entry.
void paintCheckMark(QPainter& painter, const QRectF& rect, const QColor& colour);

/// The thumb of a scroll bar.
void paintScrollThumb(QPainter& painter, const QStyleOption& option, const QRect& rect);

}  // namespace clipvane
