// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/TextLabel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <algorithm>

#include "ui/Fonts.h"

namespace clipvane {
namespace {

class TextLabelTest : public testing::Test {
  protected:
    QString toolTipOf(QWidget& widget) {
        QToolTip::hideText();
        widget.show();
        QHelpEvent help(QEvent::ToolTip, {2, 2}, widget.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&widget, &help);
        return QToolTip::text();
    }

    TextLabel label{"", systemFont(22, QFont::Bold), Qt::white};
};

TEST_F(TextLabelTest, TextThatFits_NoToolTip) {
    label.setText("short");
    label.resize(300, 30);
    EXPECT_FALSE(label.isElided());
    EXPECT_EQ(toolTipOf(label), "");
}

TEST_F(TextLabelTest, TextTooLong_WholeTextAsToolTipEscaped) {
    label.setText("<b>" + QString(100, 'x') + "</b>");
    label.resize(100, 30);
    EXPECT_TRUE(label.isElided());
    EXPECT_TRUE(toolTipOf(label).contains("&lt;b&gt;xxx"));
}

TEST_F(TextLabelTest, LongToolTip_IsAboutALineWide) {
    for (const QString& text :
         {QString("several words of a text ").repeated(40), QString("W").repeated(400)}) {
        label.setText(text);
        label.resize(100, 30);
        EXPECT_NE(toolTipOf(label), "");
        const auto tips = QApplication::topLevelWidgets();
        const auto tip = std::find_if(tips.begin(), tips.end(), [](const QWidget* widget) {
            return widget->isVisible() && widget->windowType() == Qt::ToolTip;
        });
        ASSERT_NE(tip, tips.end());
        EXPECT_GT((*tip)->width(), 400);
        EXPECT_LT((*tip)->width(), 470);
        QToolTip::hideText();
        QTest::qWait(1);
    }
}

TEST_F(TextLabelTest, MiddleElided_BothEndsShow) {
    const auto grabbed = [this](const QString& text) {
        label.setText(text);
        label.resize(200, 30);
        label.setElideMode(Qt::ElideMiddle);
        return label.grab().toImage();
    };
    const auto leftOf = [](const QImage& image) { return image.copy(0, 0, 60, 30); };
    const auto rightOf = [](const QImage& image) { return image.copy(140, 0, 60, 30); };
    const QImage shown = grabbed("begin" + QString(60, 'x') + "end");
    const QImage otherMiddle =
        grabbed("begin" + QString(40, 'x') + "yy" + QString(40, 'x') + "end");
    EXPECT_EQ(leftOf(shown), leftOf(otherMiddle));
    EXPECT_EQ(rightOf(shown), rightOf(otherMiddle));
    const QImage otherEnd = grabbed("begin" + QString(60, 'x') + "and");
    EXPECT_NE(rightOf(shown), rightOf(otherEnd));
    EXPECT_NE(leftOf(shown), leftOf(grabbed("begun" + QString(60, 'x') + "end")));
}

TEST_F(TextLabelTest, AtMostTwoLines_TheRestIsCutOff) {
    label.setMaximumLines(2);
    const int line = label.fontMetrics().lineSpacing();
    label.setText("Event 001: short");
    EXPECT_EQ(label.heightForWidth(360), line);
    label.setText("Event 001: A001_C001_1114QX_with_a_longer_name");
    EXPECT_EQ(label.heightForWidth(360), 2 * line);
    label.setText("Event 001: " + QString("name ").repeated(200));
    EXPECT_EQ(label.heightForWidth(360), 2 * line);
    label.resize(360, 2 * line);
    EXPECT_TRUE(label.isElided());
}

TEST_F(TextLabelTest, MegabyteOfText_CostsLittle) {
    label.setText(QString(1'000'000, 'x'));
    label.resize(360, 30);
    EXPECT_LT(label.sizeHint().width(), 40'000);
    label.grab();
}

}  // namespace
}  // namespace clipvane
