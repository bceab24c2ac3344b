// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/StatusLabel.h"

#include <QAccessible>

#include "ui/Colours.h"
#include "ui/Fonts.h"

namespace clipvane {

StatusLabel::StatusLabel(const QString& text, QWidget* parent)
    : TextLabel({}, systemFont(13), colours::secondaryText, parent) {
    // With a text set any sooner, assistive technology would take this for an ordinary label.
    setText(text);
}

void StatusLabel::showStatus(const QString& text) {
    setText(text);  // which tells the new name
    // Screen readers speak a notification when it appears, not when it changes.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

}  // namespace clipvane
