// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/DetailRowView.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>

#include "support/RowName.h"
#include "ui/TextLabel.h"

namespace clipvane {
namespace {

constexpr double tolerance = 0.002;  ///< a column of one letter is 0.008

/// The narrowest row, as at the window's least width.
class DetailRowViewTest : public testing::Test {
  protected:
    DetailRowViewTest() {
        row.resize(360, 26);
        row.show();
    }

    /// How much of the ink that `value` has in a row with room is shown here, or nothing if it is
    /// elided. Letters never overlap.
    double shownInk(const QString& value) {
        row.setValue(value);
        if (row.valueLabel->isElided()) return 0;
        DetailRowView wide("Source Dur", value, Qt::white);
        wide.valueLabel->setFont(row.valueLabel->font());
        wide.resize(900, 26);
        wide.show();
        return ink(*row.valueLabel) / ink(*wide.valueLabel);
    }
    static double ink(QWidget& label) {
        const QImage image = grabbed(label);
        double sum = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) sum += image.pixelColor(x, y).green();
        }
        return sum;
    }
    static QImage grabbed(QWidget& label) {
        QImage image(label.size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        label.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }

    DetailRowView row{"Source Dur", "", Qt::white};
};

TEST_F(DetailRowViewTest, Durations_ShowWholeInTheNarrowestRow) {
    for (const char* value : {"00:00:04:00 (100 frames)", "00:00:41:15 (999 frames)",
                              "00:00:41:16 (1000 frames)", "00:06:56:15 (9999 frames)"}) {
        EXPECT_NEAR(shownInk(value), 1, tolerance) << value;
    }
}

TEST_F(DetailRowViewTest, DurationsInFallbackFonts_ShowWholeUpTo999Frames) {
    int tried = 0;
    for (const char* family :
         {"DejaVu Sans Mono", "Noto Sans Mono", "Liberation Mono", "Nimbus Mono PS"}) {
        if (!QFontDatabase::hasFamily(family)) continue;
        QFont font = row.valueLabel->font();
        font.setFamilies({family});
        row.valueLabel->setFont(font);
        for (const char* value : {"00:00:04:00 (100 frames)", "00:00:41:15 (999 frames)"}) {
            EXPECT_NEAR(shownInk(value), 1, tolerance) << family << ": " << value;
        }
        ++tried;
    }
    if (tried == 0) GTEST_SKIP() << "none of the fallback fonts is installed";
}

TEST_F(DetailRowViewTest, ValueWhoseInkFits_KeepsItsLetters) {
    for (const char* value : {"01:00:00:00", "00:00:04:00 (100 frames)"}) {
        row.resize(360, 26);
        row.setValue(value);
        const QImage narrow = grabbed(*row.valueLabel);
        row.resize(900, 26);
        EXPECT_EQ(grabbed(*row.valueLabel).copy(narrow.rect()), narrow) << value;
    }
}

TEST_F(DetailRowViewTest, ValueBeyondHelp_LosesItsMiddle) {
    const auto shown = [this](char first, char middle, char last) {
        const QString run(20, 'x');
        row.setValue(QChar(first) + run + QChar(middle) + run + QChar(last));
        EXPECT_TRUE(row.valueLabel->isElided());
        return grabbed(*row.valueLabel);
    };
    const QImage one = shown('A', 'm', '7');
    EXPECT_EQ(shown('A', 'W', '7'), one);
    EXPECT_NE(shown('W', 'm', '7'), one);
    EXPECT_NE(shown('A', 'm', 'W'), one);
}

}  // namespace
}  // namespace clipvane
