// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/TextLabel.h"

namespace clipvane {

/// The status line. A screen reader says each new text.
class StatusLabel : public TextLabel {
  public:
    explicit StatusLabel(const QString& text, QWidget* parent = nullptr);

    void showStatus(const QString& text);
};

}  // namespace clipvane
