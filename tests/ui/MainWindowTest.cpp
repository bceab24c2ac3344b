// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QScrollBar>
#include <QToolTip>

#include "ui/Colours.h"
#include "ui/PanelView.h"
#include "ui/WindowUnderTest.h"

namespace clipvane {
namespace {

class MainWindowTest : public test::WindowTest {
  protected:
    /// Only an active window shows rings and serves shortcuts.
    bool activate() {
        controller.window()->activateWindow();
        return QTest::qWaitForWindowActive(controller.window());
    }
    /// What has the focus now and after each of `count` - 1 Tabs; one more follows.
    QStringList tabThrough(int count) {
        QStringList order;
        for (int i = 0; i < count; ++i) {
            QWidget* focused = controller.window()->focusWidget();
            const auto* pressed = dynamic_cast<const QPushButton*>(focused);
            order << (pressed ? pressed->text() : focused->accessibleName());
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        return order;
    }
};

TEST_F(MainWindowTest, Fresh_EmptyListAndInitialTexts) {
    EXPECT_EQ(controller.window()->windowTitle(), "Clipvane");
    EXPECT_EQ(status(), "Open an EDL, XML, FCPXML, or XMEML timeline file.");
    EXPECT_TRUE(label("Open a timeline file to view events")->isVisible());
    EXPECT_TRUE(label("No event selected")->isVisible());
    EXPECT_EQ(find<EventTableView>()->model()->rowCount(), 0);
    EXPECT_EQ(details(), (QStringList{"Clip Name=-", "Reel ID=-", "Track=-", "Source In=-",
                                      "Source Out=-", "Source Dur=-", "Record In=-", "Record Out=-",
                                      "Record Dur=-", "FPS Source=Default", "Format=-"}));
    EXPECT_TRUE(find<CommentsView>()->isReadOnly());
    EXPECT_EQ(find<FrameRatePopup>()->currentText(), "24 fps");
    EXPECT_EQ(controller.document().fps, 24.0);
}

TEST_F(MainWindowTest, AtItsFirstSize_RegionsLieWhereTheyShould) {
    controller.window()->resize(1440, 860);
    const auto* root = find<MainLayoutView>();
    EXPECT_EQ(root->size(), QSize(1440, 860));
    EXPECT_EQ(root->toolbar->geometry(), QRect(16, 16, 1408, 42));
    EXPECT_EQ(root->leftPanel->geometry(), QRect(16, 70, 974, 742));
    EXPECT_EQ(root->rightPanel->geometry(), QRect(1002, 70, 422, 742));
    EXPECT_EQ(root->status->geometry(), QRect(16, 824, 1408, 20));
    EXPECT_EQ(find<EventTableView>()->geometry(),
              dynamic_cast<PanelView*>(root->leftPanel)->contentRect());
}

TEST_F(MainWindowTest, Smallest_Is1180By720WithItsFrame) {
    controller.window()->resize(100, 100);
    EXPECT_EQ(controller.window()->frameSize(), QSize(1180, 720));
}

TEST(MainLayoutViewTest, RegionsMissing_AreSkipped) {
    MainLayoutView view;
    QWidget status(&view);
    view.status = &status;
    view.resize(1180, 700);
    view.layout();
    EXPECT_EQ(status.geometry(), QRect(16, 664, 1148, 20));
}

struct Look {
    const char* text;
    int size;
    QFont::Weight weight;
    QColor colour;
};

TEST_F(MainWindowTest, Labels_HaveTheirFontsAndColours) {
    for (const Look& look :
         {Look{"Clipvane", 26, QFont::Bold, Qt::white},
          Look{"Global FPS", 14, QFont::DemiBold, colours::secondaryText},
          Look{"Event Viewer", 16, QFont::DemiBold, colours::text},
          Look{"Selected Event", 16, QFont::DemiBold, colours::text},
          Look{"Open a timeline file to view events", 22, QFont::DemiBold,
               colours::rgb(0.62, 0.68, 0.76)},
          Look{"No event selected", 22, QFont::Bold, colours::rgb(0.95, 0.96, 1.0)},
          Look{"Clip Name", 14, QFont::DemiBold, colours::secondaryText},
          Look{"Default", 17, QFont::Normal, colours::rgb(0.62, 0.82, 1.0)},
          Look{"Comments", 15, QFont::DemiBold, colours::secondaryText},
          Look{"Open an EDL, XML, FCPXML, or XMEML timeline file.", 13, QFont::Normal,
               colours::secondaryText}}) {
        const QLabel* found = label(look.text);
        ASSERT_NE(found, nullptr) << look.text;
        EXPECT_EQ(found->font().pixelSize(), look.size) << look.text;
        EXPECT_EQ(found->font().weight(), look.weight) << look.text;
        EXPECT_EQ(found->palette().color(QPalette::WindowText), look.colour) << look.text;
        EXPECT_EQ(found->textFormat(), Qt::PlainText) << look.text;
    }
}

TEST_F(MainWindowTest, Surfaces_HaveTheirColours) {
    const QImage image = controller.window()->grab().toImage();
    EXPECT_EQ(image.pixelColor(5, 5), colours::rgb(0.07, 0.08, 0.09));
    EXPECT_EQ(image.pixelColor(22, 120), colours::rgb(0.105, 0.115, 0.13));
    EXPECT_EQ(image.pixelColor(1006, 400), colours::rgb(0.105, 0.115, 0.13));
    const auto* editor = find<CommentsView>();
    const QPoint inside = editor->mapTo(controller.window(), editor->rect().center());
    EXPECT_EQ(image.pixelColor(inside), colours::rgb(0.08, 0.1, 0.12));
}

TEST_F(MainWindowTest, Toolbar_ControlsInOrderAllAlike) {
    const QStringList expected{"Open Timeline", "Remove Event", "Copy Info",
                               "Export CSV",    "Export EDL",   "Help"};
    int right = 0;
    for (const QString& title : expected) {
        const QPushButton* found = button(title);
        ASSERT_NE(found, nullptr) << title.toStdString();
        EXPECT_TRUE(found->isEnabled() && found->isVisible());
        EXPECT_EQ(found->font().pixelSize(), 14);
        EXPECT_EQ(found->font().weight(), QFont::Medium);
        EXPECT_EQ(found->height(), button("Help")->height());
        EXPECT_FALSE(found->isDefault());
        const int left = found->mapTo(controller.window(), QPoint()).x();
        EXPECT_GT(left, right);
        if (title == "Open Timeline" || title == "Remove Event") {
            right = left;  // the frame rates lie between the two
        } else {
            EXPECT_EQ(left - right, 8) << title.toStdString();
        }
        right = left + found->width();
    }
    EXPECT_EQ(right, 16 + 1408);
    const auto* popup = find<FrameRatePopup>();
    const QLabel* name = label("Global FPS");
    const auto x = [this](const QWidget* widget) {
        return widget->mapTo(controller.window(), QPoint()).x();
    };
    EXPECT_EQ(x(popup) - (x(name) + name->width()), 12);
    EXPECT_EQ(x(name) - (x(button("Open Timeline")) + button("Open Timeline")->width()), 8);
    EXPECT_EQ(x(button("Remove Event")) - (x(popup) + popup->width()), 8);
}

TEST_F(MainWindowTest, Toolbar_IsCentredVertically) {
    QList<QWidget*> parts{label("Clipvane"), label("Global FPS"), find<FrameRatePopup>()};
    for (const char* title : {"Open Timeline", "Remove Event", "Help"}) parts << button(title);
    for (const QWidget* part : parts) {
        const int top = part->mapTo(controller.window(), QPoint()).y() - 16;
        EXPECT_NEAR(top + part->height() / 2.0, 42 / 2.0, 0.5) << part->height();
    }
}

TEST_F(MainWindowTest, Panels_HaveCornersOfRadius8) {
    const QImage image = controller.window()->grab().toImage();
    for (const QWidget* panel :
         {find<MainLayoutView>()->leftPanel, find<MainLayoutView>()->rightPanel}) {
        const QPoint corner = panel->mapTo(controller.window(), QPoint());
        const auto onUpperEdge = [&](int x) { return image.pixelColor(corner + QPoint(x, 0)); };
        // A smaller radius would have begun the edge here, a larger one not yet there.
        EXPECT_NEAR(onUpperEdge(4).green(), colours::window.green(), 3);
        EXPECT_GT(onUpperEdge(6).green(),
                  (colours::window.green() + colours::panelEdge.green()) / 2);
    }
}

TEST_F(MainWindowTest, TextOfAnEmptyList_LeavesAMarginOf20) {
    const auto* panel = dynamic_cast<PanelView*>(find<MainLayoutView>()->leftPanel);
    EXPECT_EQ(label("Open a timeline file to view events")->geometry(),
              panel->contentRect().adjusted(20, 20, -20, -20));
    controller.window()->resize(1500, 900);
    EXPECT_EQ(label("Open a timeline file to view events")->geometry(),
              panel->contentRect().adjusted(20, 20, -20, -20));
}

TEST_F(MainWindowTest, TabbedTo_EachControlHasItsRingAndNoOther) {
    open(writeEDL("cut.edl", 1));
    QWidget& window = *controller.window();
    ASSERT_TRUE(activate());
    button("Help")->setFocus(Qt::TabFocusReason);
    QList<QWidget*> controls;
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        controls << window.focusWidget();
    }
    // The ring's upper side, which a list has a little outside.
    const auto isRinged = [&window](const QWidget* control, const QImage& image) {
        const QPoint top = control->mapTo(&window, QPoint(control->width() / 2, 0));
        for (int y = -4; y < 4; ++y) {
            if (image.pixelColor(top + QPoint(0, y)) == colours::focusRing) return true;
        }
        return false;
    };
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        const QImage image = window.grab().toImage();
        for (const QWidget* control : controls) {
            EXPECT_EQ(isRinged(control, image), control == window.focusWidget())
                << control->accessibleName().toStdString() << ' ' << i;
        }
    }
}

TEST_F(MainWindowTest, CtrlF1_ShowsWhatIsNotShownWhole) {
    const std::string name = "A001_C001_" + std::string(60, 'x') + "_take_07";
    test::writeContent(folder / "long.edl",
                       "001  R1 V C 01:00:00:00 01:00:04:00 02:00:00:00 02:00:04:00\n"
                       "* FROM CLIP NAME: " +
                           name + "\n");
    ASSERT_TRUE(activate());
    QToolTip::hideText();
    QTest::keyClick(controller.window(), Qt::Key_F1, Qt::ControlModifier);
    EXPECT_EQ(QToolTip::text(), "") << "all is shown whole";
    open((folder / "long.edl").string());
    ASSERT_TRUE(activate());
    for (QWidget* focused : {static_cast<QWidget*>(find<EventTableView>()),
                             static_cast<QWidget*>(find<CommentsView>())}) {
        QToolTip::hideText();
        focused->setFocus();
        QTest::keyClick(focused, Qt::Key_F1, Qt::ControlModifier);
        const QString tip = QToolTip::text().remove(QChar(0x200b));
        EXPECT_TRUE(tip.contains("Clip Name: " + QString::fromStdString(name)))
            << tip.toStdString();
        EXPECT_FALSE(tip.contains("Reel ID"));
    }
    QToolTip::hideText();
}

TEST_F(MainWindowTest, Narrow_OnlyTheSpaceAfterTheNameShrinks) {
    const int labelWidth = label("Global FPS")->width();
    const int buttonWidth = button("Export CSV")->width();
    controller.window()->resize(1180, 720);
    EXPECT_EQ(label("Global FPS")->width(), labelWidth);
    EXPECT_EQ(button("Export CSV")->width(), buttonWidth);
    controller.window()->resize(1900, 900);
    EXPECT_EQ(label("Global FPS")->width(), labelWidth);
}

TEST_F(MainWindowTest, DetailPanel_RowsHaveTheirFrames) {
    controller.window()->resize(1440, 860);
    const auto* row = find<DetailRowView>();
    EXPECT_EQ(row->height(), 26);
    EXPECT_EQ(row->width(), 362);
    EXPECT_EQ(row->keyLabel->geometry(), QRect(0, 3, 104, 20));
    EXPECT_EQ(row->valueLabel->geometry(), QRect(116, 2, 362 - 116, 23));
    EXPECT_EQ(row->parentWidget()->height(), 640);
    const int title = label("No event selected")->height();
    EXPECT_EQ(title, label("No event selected")->fontMetrics().lineSpacing());
    EXPECT_EQ(row->y(), 8 + title + 14);
    const auto* editor = find<CommentsView>();
    EXPECT_EQ(editor->parentWidget()->height(), 166 - title);
    EXPECT_EQ(editor->height(), 166 - title - 34);
    EXPECT_EQ(editor->width(), 362);
}

TEST_F(MainWindowTest, DetailPanelAtItsNarrowest_ShowsTheRowsWhole) {
    controller.window()->resize(1180, 720);
    const auto* row = find<DetailRowView>();
    EXPECT_EQ(row->width(), 360);
    EXPECT_EQ(row->visibleRegion().boundingRect().width(), 360);
}

TEST_F(MainWindowTest, TabOrderWithNothingToComment_PassesTheCommentsBy) {
    button("Help")->setFocus();
    EXPECT_EQ(tabThrough(3), (QStringList{"Help", "Event Viewer", "Open Timeline"}));
}

TEST_F(MainWindowTest, Smallest_EveryControlStandsWholeAndApart) {
    open(writeEDL("cut.edl", 20));
    controller.window()->resize(1, 1);
    const QRect window = controller.window()->rect();
    std::vector<QRect> places;
    for (QWidget* control : std::initializer_list<QWidget*>{
             label("Clipvane"), button("Open Timeline"), label("Global FPS"),
             find<FrameRatePopup>(), button("Remove Event"), button("Copy Info"),
             button("Export CSV"), button("Export EDL"), button("Help"), find<EventTableView>(),
             label("Selected Event"), find<StatusLabel>()}) {
        ASSERT_NE(control, nullptr);
        const QRect place(control->mapTo(controller.window(), QPoint()), control->size());
        const std::string name =
            control->metaObject()->className() + std::string(" at ") + std::to_string(place.x());
        EXPECT_TRUE(window.contains(place)) << name;
        EXPECT_EQ(control->visibleRegion().boundingRect(), control->rect()) << name;
        for (const QRect& other : places) EXPECT_FALSE(place.intersects(other)) << name;
        places.push_back(place);
    }
    for (const auto* pressed : controller.window()->findChildren<QPushButton*>()) {
        EXPECT_GE(pressed->width(), pressed->sizeHint().width()) << pressed->text().toStdString();
    }
    EXPECT_GE(find<FrameRatePopup>()->width(), find<FrameRatePopup>()->sizeHint().width());
    for (const auto* shown : controller.window()->findChildren<QLabel*>()) {
        const auto* text = dynamic_cast<const TextLabel*>(shown);
        if (text != nullptr && text->isVisible()) {
            EXPECT_FALSE(text->isElided()) << text->text().toStdString();
        }
    }
}

TEST_F(MainWindowTest, Smallest_ShowsTenEventsAndTenRowsOfDetails) {
    open(writeEDL("cut.edl", 20));
    controller.window()->resize(1, 1);
    auto& list = *find<EventTableView>();
    const QRect tenth = list.visualRect(list.model()->index(9, 0));
    EXPECT_TRUE(list.viewport()->rect().contains(tenth));
    int whole = 0;
    for (auto* widget : controller.window()->findChildren<QWidget*>()) {
        const auto* row = dynamic_cast<DetailRowView*>(widget);
        if (row != nullptr && row->visibleRegion().boundingRect() == row->rect()) ++whole;
    }
    EXPECT_GE(whole, 10);
}

TEST_F(MainWindowTest, TabOrder_ToolbarTableCommentsAndBack) {
    open(writeEDL("cut.edl", 1));
    button("Open Timeline")->setFocus();
    EXPECT_EQ(tabThrough(10),
              (QStringList{"Open Timeline", "Global FPS", "Remove Event", "Copy Info", "Export CSV",
                           "Export EDL", "Help", "Event Viewer", "Comments", "Open Timeline"}));
    EXPECT_EQ(controller.window()->focusWidget()->accessibleName(), "Global FPS");
    QTest::keyClick(controller.window()->focusWidget(), Qt::Key_Backtab);
    QTest::keyClick(controller.window()->focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(controller.window()->focusWidget(), find<CommentsView>());
}

}  // namespace
}  // namespace clipvane
