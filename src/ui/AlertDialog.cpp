// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/AlertDialog.h"

#include <QAccessible>
#include <QGridLayout>
#include <QPainter>
#include <QPushButton>

#include "ui/AlertSign.h"
#include "ui/Colours.h"
#include "ui/Fonts.h"
#include "ui/Text.h"
#include "ui/TextLabel.h"

namespace clipvane {
namespace {

constexpr int mostLines = 12;

class SignView : public QWidget {
  public:
    explicit SignView(AlertSign sign) : sign(sign) { setFixedSize(alertSignSize, alertSignSize); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintAlertSign(painter, rect(), sign);
    }

  private:
    AlertSign sign;
};

/// The least width at which the text takes no more lines than at `alertTextWidth`: lines of much
/// the same length, and no word alone on the last.
int balancedWidth(const TextLabel& label) {
    const int height = label.heightForWidth(alertTextWidth);
    if (height >= mostLines * label.fontMetrics().lineSpacing()) return alertTextWidth;
    int tooNarrow = 0;
    int wideEnough = alertTextWidth;
    while (wideEnough - tooNarrow > 1) {
        const int width = (tooNarrow + wideEnough) / 2;
        (label.heightForWidth(width) > height ? tooNarrow : wideEnough) = width;
    }
    return wideEnough;
}

TextLabel* wrapped(const std::string& text, const QFont& font, const QColor& colour) {
    auto* label = new TextLabel(toQt(text), font, colour);
    label->setMaximumLines(mostLines);
    label->setFixedSize(balancedWidth(*label), label->heightForWidth(alertTextWidth));
    return label;
}

}  // namespace

AlertDialog::AlertDialog(const Alert& alert, QWidget* parent) : QDialog(parent) {
    setWindowTitle("Clipvane");
    setAccessibleName(toQt(alert.message));
    setAccessibleDescription(toQt(alert.information));

    auto* button = new QPushButton("OK");
    button->setFont(systemFont(14, QFont::Medium));
    button->setMinimumWidth(alertButtonWidth);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);

    const bool warns = alert.style == Alert::Style::warning;
    const AlertSign sign = warns ? AlertSign::warning : AlertSign::notice;
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(alertMargins);
    layout->setHorizontalSpacing(28);
    layout->setVerticalSpacing(12);
    layout->addWidget(new SignView(sign), 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(wrapped(alert.message, systemFont(15, QFont::Bold), colours::white), 0, 1);
    layout->addWidget(wrapped(alert.information, systemFont(13), colours::text), 1, 1);
    layout->setColumnMinimumWidth(1, alertTextWidth);
    layout->setRowMinimumHeight(2, 6);
    layout->addWidget(button, 3, 1, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void AlertDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

}  // namespace clipvane
