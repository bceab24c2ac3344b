// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace clipvane {

class TextLabel;

/// A line of the detail panel: a key and its value, on one baseline. An empty value shows as "-".
class DetailRowView : public QWidget {
  public:
    TextLabel* const keyLabel;
    TextLabel* const valueLabel;

    DetailRowView(const QString& label, const QString& value, const QColor& valueColor,
                  QWidget* parent = nullptr);

    void setValue(const QString& value);
    QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

}  // namespace clipvane
