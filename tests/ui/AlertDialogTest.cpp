// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/AlertDialog.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include "ui/Colours.h"
#include "ui/TextLabel.h"

namespace clipvane {
namespace {

const Alert reminder{Alert::Style::informational, "Check Project Frame Rate",
                     "Please make sure to set the right project frame rate."};

QStringList texts(const QDialog& dialog) {
    QStringList result;
    for (const auto* label : dialog.findChildren<QLabel*>()) result << label->text();
    return result;
}

TEST(AlertDialog, ShowsItsTextsAndOneButton) {
    const AlertDialog dialog(reminder, nullptr);
    EXPECT_EQ(texts(dialog),
              (QStringList{"Check Project Frame Rate",
                           "Please make sure to set the right project frame rate."}));
    ASSERT_EQ(dialog.findChildren<QPushButton*>().size(), 1);
    EXPECT_EQ(dialog.findChild<QPushButton*>()->text(), "OK");
    EXPECT_TRUE(dialog.findChild<QPushButton*>()->isDefault());
}

TEST(AlertDialog, ReturnAndEscape_DismissIt) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space}) {
        AlertDialog dialog(reminder, nullptr);
        dialog.show();
        dialog.findChild<QPushButton*>()->setFocus();
        QTest::keyClick(dialog.findChild<QPushButton*>(), key);
        EXPECT_FALSE(dialog.isVisible()) << key;
    }
}

TEST(AlertDialog, MarkupInTheReason_IsShownAsText) {
    const std::string reason = "The file \"<img src=x><b>a</b>.edl\" could not be read.";
    const AlertDialog dialog({Alert::Style::warning, "Could not open timeline", reason}, nullptr);
    for (const auto* label : dialog.findChildren<QLabel*>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
    }
    EXPECT_EQ(texts(dialog)[1].toStdString(), reason);
}

int linesOf(const QLabel& label) {
    return label.height() / label.fontMetrics().lineSpacing();
}

TEST(AlertDialog, Text_BreaksIntoLinesOfMuchTheSameLength) {
    const AlertDialog dialog(
        {Alert::Style::informational, "Check Project Frame Rate",
         "Please make sure to set the right project frame rate. Incorrect frame rate might produce "
         "incorrect timecodes."},
        nullptr);
    const auto& message = *dialog.findChildren<TextLabel*>()[0];
    EXPECT_EQ(linesOf(message), 1);
    const auto& text = *dialog.findChildren<TextLabel*>()[1];
    EXPECT_FALSE(text.isElided());
    ASSERT_GT(linesOf(text), 1);
    const int average = text.fontMetrics().horizontalAdvance(text.text()) / linesOf(text);
    EXPECT_LT(text.width(), average * 1.25);
}

TEST(AlertDialog, SignOfANotice_IsWhiteOnBlueAndThatOfAWarningDarkOnAmber) {
    const auto signOf = [](Alert::Style style) {
        AlertDialog dialog({style, "Message", "Text"}, nullptr);
        dialog.show();
        const QImage image = dialog.grab().toImage();
        // The middle of the icon, which is 40 wide, at the left of its ground; then in the stem.
        return std::pair(image.pixelColor(24 + 6, 24 + 20), image.pixelColor(24 + 20, 24 + 20));
    };
    EXPECT_EQ(signOf(Alert::Style::informational), std::pair(colours::accentHover, colours::white));
    EXPECT_EQ(signOf(Alert::Style::warning), std::pair(colours::warning, colours::window));
}

TEST(AlertDialog, VeryLongReason_StaysOnTheScreen) {
    AlertDialog dialog({Alert::Style::warning, "Export failed", std::string(100'000, 'x')},
                       nullptr);
    dialog.show();
    EXPECT_LT(dialog.width(), 500);
    EXPECT_LT(dialog.height(), 500);
}

}  // namespace
}  // namespace clipvane
