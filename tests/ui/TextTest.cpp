// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/Text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QToolTip>

namespace clipvane {
namespace {

TEST(DisplayLine, LineBreaksAndControls_BecomeBlanks) {
    EXPECT_EQ(displayLine(QString::fromUtf16(u"a\nb\r\tc\u2028d\u2029e\u0085f")), "a b  c d e f");
}

TEST(DisplayLine, VeryLongText_KeepsItsEnds) {
    const QString line = displayLine("begin" + QString(1'000'000, 'x') + "end");
    EXPECT_LE(line.size(), 1025);
    EXPECT_TRUE(line.startsWith("begin"));
    EXPECT_TRUE(line.contains(u'…'));
    EXPECT_TRUE(line.endsWith("end"));
}

TEST(DisplayLine, CutInsidePairs_KeepsWholeCharacters) {
    const QString smile = QString::fromUtf8("😀");
    const QString line = displayLine("a" + smile.repeated(2000));
    EXPECT_TRUE(line.isValidUtf16());
}

TEST(ToolTipText, Markup_IsShownAsText) {
    EXPECT_TRUE(toolTipText("<b>x</b>&").contains("&lt;b&gt;x&lt;/b&gt;&amp;"));
}

TEST(ToolTipText, LongerThanALine_IsALineWideAndCanBreakInNames) {
    EXPECT_FALSE(toolTipText("00:00:04:00 (100 frames)").contains("width="));
    EXPECT_TRUE(toolTipText(QString("word ").repeated(60)).contains("<table width='420'>"));
    const QString name = toolTipText(QString("W").repeated(90));
    EXPECT_EQ(name.count(QChar(0x200b)), 60);
    EXPECT_TRUE(toolTipText(QString::fromUtf8("😀").repeated(200)).isValidUtf16());
}

TEST(ToolTipText, ShorterThanALine_StaysOnIt) {
    const QFontMetrics metrics(QToolTip::font());
    for (const QString& text : {QString("1111:06:44:24 (100000124 frames)"),
                                QString("Reel ID: A001 of the second unit")}) {
        QToolTip::showText({20, 20}, toolTipText(text));
        int seen = 0;
        for (const QWidget* tip : QApplication::topLevelWidgets()) {
            if (!tip->inherits("QTipLabel") || !tip->isVisible()) continue;
            ++seen;
            EXPECT_GT(tip->width(), metrics.horizontalAdvance(text)) << text.toStdString();
            EXPECT_LT(tip->height(), 3 * metrics.lineSpacing()) << text.toStdString();
        }
        EXPECT_EQ(seen, 1);
        QToolTip::hideText();
        // A tip that the toolkit still has at the end counts as a leak.
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

}  // namespace
}  // namespace clipvane
