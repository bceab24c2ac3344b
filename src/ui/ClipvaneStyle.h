// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

class QStyleOptionComboBox;
class QStyleOptionHeader;
class QStyleOptionMenuItem;
class QStyleOptionSlider;

namespace clipvane {

/// The look of the whole program, dialogs, alerts and lists included: dark, whatever the desktop's
/// theme is.
class ClipvaneStyle : public QProxyStyle {
  public:
    ClipvaneStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    QPalette standardPalette() const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                         SubControl subControl, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;

  private:
    void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter) const;
    void drawScrollBar(const QStyleOptionSlider& option, QPainter& painter,
                       const QWidget* widget) const;
    void drawHeaderSection(const QStyleOptionHeader& option, QPainter& painter) const;
    void drawHeaderLabel(const QStyleOptionHeader& option, QPainter& painter) const;
    void drawMenuItem(const QStyleOptionMenuItem& option, QPainter& painter) const;
};

}  // namespace clipvane
