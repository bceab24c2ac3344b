// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QLabel>
#include <optional>

namespace clipvane {

/// A label for any text, however long and whatever it holds: shown as it stands, left-aligned
/// unless centred, elided where it does not fit, with the whole text as a tool tip then.
class TextLabel : public QLabel {
  public:
    TextLabel(const QString& text, const QFont& font, const QColor& colour,
              QWidget* parent = nullptr);

    QColor colour() const;
    void setElideMode(Qt::TextElideMode mode);
    /// Lets the letters stand closer, down to `percent` of their usual distance, before a text is
    /// elided.
    void setLeastSpacing(int percent) { leastSpacing = percent; }
    /// Wraps to at most `count` lines.
    void setMaximumLines(int count);
    /// The y of the text's baseline; without one the text is centred vertically.
    void setBaseline(int y) { baseline = y; }

    bool isElided() const;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void setColour(const QColor& colour);

    struct Lines {
        QStringList texts;
        std::optional<QFont> font;  ///< other than the label's own, if the last line needs it
        bool elided = false;
    };
    Lines lines(int width) const;
    std::optional<QFont> fittingFont(const QString& line, int width) const;

    Qt::TextElideMode mode = Qt::ElideRight;
    int lineLimit = 1;
    int leastSpacing = 100;
    int baseline = -1;
};

}  // namespace clipvane
