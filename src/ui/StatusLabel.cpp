// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/StatusLabel.h"

#include <QAccessible>

#include "ui/Colours.h"
#include "ui/Fonts.h"

namespace clipvane {

StatusLabel::StatusLabel(const QString& text, QWidget* parent)
    : TextLabel(text, systemFont(13), colours::secondaryText, parent) {}

void StatusLabel::showStatus(const QString& text) {
    setText(text);  // which announces the new name
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

}  // namespace clipvane
