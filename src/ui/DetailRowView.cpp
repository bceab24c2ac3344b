// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/DetailRowView.h"

#include "ui/Colours.h"
#include "ui/Fonts.h"
#include "ui/Geometry.h"
#include "ui/TextLabel.h"

namespace clipvane {
namespace {

/// Percent. A duration of 9,999 frames then fits into the narrowest row.
constexpr int leastValueSpacing = 92;

}  // namespace

DetailRowView::DetailRowView(const QString& label, const QString& value, const QColor& valueColor,
                             QWidget* parent)
    : QWidget(parent),
      keyLabel(new TextLabel(label, systemFont(14, QFont::DemiBold), colours::secondaryText, this)),
      valueLabel(new TextLabel({}, monospacedFont(17), valueColor, this)) {
    resize(detailRowSize);
    valueLabel->setElideMode(Qt::ElideMiddle);
    valueLabel->setLeastSpacing(leastValueSpacing);
    keyLabel->setBuddy(valueLabel);
    setValue(value);
}

void DetailRowView::setValue(const QString& value) {
    const QString shown = value.isEmpty() ? QStringLiteral("-") : value;
    if (valueLabel->text() != shown) valueLabel->setText(shown);
}

QSize DetailRowView::sizeHint() const {
    return detailRowSize;
}

void DetailRowView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const DetailRowLayout places = detailRowLayout(width());
    keyLabel->setGeometry(flipped(places.key, height()));
    valueLabel->setGeometry(flipped(places.value, height()));
    const int baseline = valueLabel->fontMetrics().ascent();
    valueLabel->setBaseline(baseline);
    keyLabel->setBaseline(valueLabel->y() + baseline - keyLabel->y());
}

}  // namespace clipvane
