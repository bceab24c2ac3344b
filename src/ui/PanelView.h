// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMargins>
#include <QWidget>
#include <vector>

namespace clipvane {

/// A rounded box with a title. Its content follows its size.
class PanelView : public QWidget {
  public:
    explicit PanelView(const QString& title, QWidget* parent = nullptr);

    /// Adds `view` on top of the content so far. It fills the panel inside the box's margins, less
    /// its own `margins`.
    void addContent(QWidget* view, const QMargins& margins = {});
    /// The place inside the margins, below the title.
    QRect contentRect() const;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Content {
        QWidget* view;
        QMargins margins;
    };

    QWidget* titleLabel;
    std::vector<Content> contents;
};

}  // namespace clipvane
