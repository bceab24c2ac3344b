// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace clipvane {

/// Paints one field of an event in its column's colour. A text that does not fit loses its
/// middle, and its tool tip shows the whole.
class EventCell : public QStyledItemDelegate {
  public:
    static constexpr int padding = 8;  ///< in logical pixels, on the left and on the right

    explicit EventCell(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    const QFont& font() const { return labelFont; }
    /// The text as a cell `width` wide shows it.
    QString shownText(const QModelIndex& index, int width) const;

  private:
    QFont labelFont;
    double widestPlain;  ///< the advance of the widest ASCII character, in logical pixels
};

}  // namespace clipvane
