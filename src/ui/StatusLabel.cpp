// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/StatusLabel.h"

#include <QAccessible>

#include "ui/Colours.h"
#include "ui/Fonts.h"

namespace clipvane {

StatusLabel::StatusLabel(const QString& text, QWidget* parent)
    : TextLabel({}, systemFont(13), colours::secondaryText, parent) {
    // Told of a text any sooner, assistive technology would take this for a common label for good.
    setText(text);
}

void StatusLabel::showStatus(const QString& text) {
    setText(text);  // which tells the new name
    // A screen reader says a notification that comes to show, but none that changes.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

}  // namespace clipvane
