// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QScrollBar>
#include <set>

#include "ui/ExpectedColumns.h"
#include "ui/WindowUnderTest.h"

namespace clipvane {
namespace {

class AccessibilityTest : public test::WindowTest {
  protected:
    static void collect(QAccessibleInterface* item, std::vector<QAccessibleInterface*>& all) {
        if (item == nullptr || !item->isValid()) return;
        all.push_back(item);
        for (int i = 0; i < item->childCount(); ++i) collect(item->child(i), all);
    }
    std::vector<QAccessibleInterface*> everything() {
        std::vector<QAccessibleInterface*> all;
        collect(QAccessible::queryAccessibleInterface(controller.window()), all);
        return all;
    }
    QAccessibleInterface* named(const QString& name, QAccessible::Role role) {
        for (auto* item : everything()) {
            if (item->text(QAccessible::Name) == name && item->role() == role) return item;
        }
        return nullptr;
    }
    QAccessibleTableInterface& table() {
        return *named("Event Viewer", QAccessible::Table)->tableInterface();
    }
    QAccessibleInterface* cell(int row, std::string_view column) {
        return table().cellAt(row, test::columnOf(column));
    }
};

TEST_F(AccessibilityTest, WhateverTakesTheFocus_HasANameAndARole) {
    open(writeEDL("cut.edl", 2));
    int focusable = 0;
    for (auto* item : everything()) {
        if (!item->state().focusable || item->state().invisible) continue;
        ++focusable;
        EXPECT_FALSE(item->text(QAccessible::Name).isEmpty()) << item->role();
        EXPECT_NE(item->role(), QAccessible::NoRole);
    }
    EXPECT_GT(focusable, 8);
}

TEST_F(AccessibilityTest, Controls_HaveTheirRolesAndNames) {
    for (const char* title :
         {"Open Timeline", "Remove Event", "Copy Info", "Export CSV", "Export EDL", "Help"}) {
        EXPECT_NE(named(title, QAccessible::Button), nullptr) << title;
    }
    auto* popup = named("Global FPS", QAccessible::ComboBox);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->text(QAccessible::Value), "24 fps");
    EXPECT_NE(named("Comments", QAccessible::EditableText), nullptr);
    EXPECT_NE(named("Clipvane", QAccessible::Window), nullptr);
}

TEST_F(AccessibilityTest, Regions_HaveRolesThatAreAnnounced_InReadingOrder) {
    QStringList regions;
    for (auto* item : everything()) {
        const QString name = item->text(QAccessible::Name);
        if (item->role() == QAccessible::ToolBar) regions << "tool bar " + name;
        if (item->role() == QAccessible::Grouping) regions << "group " + name;
        if (item->role() == QAccessible::Notification) regions << "notification " + name;
    }
    EXPECT_EQ(regions, (QStringList{"tool bar Toolbar", "group Event Viewer",
                                    "group Selected Event", "notification " + status()}));
}

TEST_F(AccessibilityTest, Popup_TellsItsEntryAsTextAndValueAndSelection) {
    auto* popup = named("Global FPS", QAccessible::ComboBox);
    ASSERT_NE(popup, nullptr);
    const auto selected = [popup] {
        QStringList names;
        auto* list = popup->child(0);
        for (int i = 0; i < list->childCount(); ++i) {
            if (list->child(i)->state().selected) names << list->child(i)->text(QAccessible::Name);
        }
        return names.join(' ');
    };
    ASSERT_NE(popup->textInterface(), nullptr);
    EXPECT_EQ(popup->textInterface()->text(0, popup->textInterface()->characterCount()), "24 fps");
    ASSERT_NE(popup->valueInterface(), nullptr);
    EXPECT_EQ(popup->valueInterface()->currentValue(), 24.0);
    EXPECT_EQ(popup->text(QAccessible::Description), "");
    EXPECT_EQ(selected(), "24 fps");
    auto* box = find<FrameRatePopup>();
    box->showPopup();
    QTest::keyClick(box->view(), Qt::Key_Down);
    EXPECT_EQ(selected(), "25 fps");
    box->hidePopup();
    EXPECT_EQ(selected(), "24 fps");
    box->showRate(12.5);
    EXPECT_EQ(selected(), "12.5 fps");
    EXPECT_EQ(popup->valueInterface()->currentValue(), 12.5);
}

TEST_F(AccessibilityTest, Comments_EachCharacterHasItsPlaceOnTheScreen) {
    open(writeEDL("cut.edl", 1));
    auto* editor = find<CommentsView>();
    QTest::keyClicks(editor, "ab");
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::keyClicks(editor, "c " + QString("word ").repeated(20));
    auto* text = named("Comments", QAccessible::EditableText)->textInterface();
    ASSERT_NE(text, nullptr);
    const QRect a = text->characterRect(0);
    const QRect b = text->characterRect(1);
    const QRect c = text->characterRect(3);
    const QPoint corner = editor->viewport()->mapToGlobal(QPoint());
    EXPECT_TRUE(QRect(corner, editor->viewport()->size()).contains(a));
    EXPECT_GT(a.width(), 2);
    EXPECT_EQ(b.topLeft(), QPoint(a.left() + a.width(), a.top()));
    EXPECT_EQ(c.topLeft(), QPoint(a.left(), a.top() + a.height()));
    EXPECT_EQ(text->offsetAtPoint(c.center() - QPoint(1, 0)), 3);
    // A long line wraps; a screen reader is given what stands in one row.
    int start = 0;
    int end = 0;
    const QString row = text->textAtOffset(3, QAccessible::LineBoundary, &start, &end);
    EXPECT_EQ(start, 3);
    EXPECT_TRUE(row.startsWith("c word word")) << row.toStdString();
    EXPECT_LT(row.size(), 80);
    EXPECT_GT(text->characterRect(end + 2).top(), c.top());
    EXPECT_EQ(text->textBeforeOffset(end + 2, QAccessible::LineBoundary, &start, &end), row);
    EXPECT_EQ(text->textAfterOffset(0, QAccessible::LineBoundary, &start, &end), row);
}

TEST_F(AccessibilityTest, Comments_ChangedByAssistiveTechnology_CountAsTyped) {
    open(writeEDL("cut.edl", 1));
    auto* comments = named("Comments", QAccessible::EditableText);
    comments->editableTextInterface()->insertText(0, "by voice");
    comments->editableTextInterface()->replaceText(3, 8, "hand");
    EXPECT_EQ(controller.document().events[0].comments, "by hand");
    EXPECT_EQ(comments->text(QAccessible::Value), "by hand");
    click("Remove Event");
    comments->editableTextInterface()->insertText(0, "nowhere");
    EXPECT_EQ(find<CommentsView>()->comments(), "");
}

TEST_F(AccessibilityTest, Table_TellsItsHeadersAndCells) {
    open(writeEDL("cut.edl", 2));
    EXPECT_EQ(table().rowCount(), 2);
    ASSERT_EQ(table().columnCount(), test::columnCount);
    for (int column = 0; column < test::columnCount; ++column) {
        const char* title = test::expectedColumns[static_cast<std::size_t>(column)].title;
        EXPECT_EQ(table().columnDescription(column), title);
        EXPECT_NE(named(title, QAccessible::ColumnHeader), nullptr) << title;
    }
    auto* name = cell(1, "clipName");
    EXPECT_EQ(name->role(), QAccessible::Cell);
    EXPECT_EQ(name->text(QAccessible::Name), "Clip 002");
    EXPECT_EQ(name->rect().height(), 48);
    EXPECT_EQ(table().selectedRows(), QList<int>{0});
}

TEST_F(AccessibilityTest, ScrolledSideways_HeadersAreWhereTheirCellsAre) {
    open(writeEDL("cut.edl", 1));
    auto* bar = find<EventTableView>()->horizontalScrollBar();
    ASSERT_GT(bar->maximum(), 50);
    for (const int offset : {0, 50}) {
        bar->setValue(offset);
        for (const char* identifier : {"sourceIn", "sourceOut"}) {
            const int column = test::columnOf(identifier);
            const auto* title = test::expectedColumns[static_cast<std::size_t>(column)].title;
            const QRect header = named(title, QAccessible::ColumnHeader)->rect();
            const QRect below = table().cellAt(0, column)->rect();
            EXPECT_EQ(header.left(), below.left()) << title << ' ' << offset;
            EXPECT_EQ(header.width(), below.width());
            EXPECT_EQ(header.bottom() + 1, below.top());
        }
    }
}

TEST_F(AccessibilityTest, EmptyCell_StillHasAName) {
    const std::string path = (folder / "empty.xml").string();
    test::writeContent(path,
                       "<xmeml><clipitem><name>n</name><start>0</start><end>5</end><in>0</in>"
                       "<out>5</out></clipitem></xmeml>");
    open(path);
    ASSERT_GT(table().rowCount(), 0);
    for (int column = 0; column < test::columnCount; ++column) {
        EXPECT_FALSE(table().cellAt(0, column)->text(QAccessible::Name).isEmpty()) << column;
    }
}

TEST_F(AccessibilityTest, RowRemovedWhileWatched_CellsStayReadable) {
    open(writeEDL("cut.edl", 3));
    static_cast<void>(everything());
    find<EventTableView>()->selectRow(2);
    click("Remove Event");
    EXPECT_EQ(table().rowCount(), 2);
    EXPECT_EQ(cell(1, "clipName")->text(QAccessible::Name), "Clip 002");
}

TEST_F(AccessibilityTest, DetailPanel_IsReadFromTheTop) {
    std::vector<QString> names;
    for (auto* item : everything()) {
        if (item->role() == QAccessible::StaticText || item->role() == QAccessible::EditableText) {
            names.push_back(item->text(QAccessible::Name));
        }
    }
    const auto at = [&](const QString& name) {
        return std::find(names.begin(), names.end(), name) - names.begin();
    };
    EXPECT_LT(at("No event selected"), at("Clip Name"));
    EXPECT_LT(at("Clip Name"), at("Format"));
    EXPECT_LT(at("Format"), at("Comments"));
    EXPECT_LT(at("Comments"), static_cast<std::ptrdiff_t>(names.size()));
}

}  // namespace
}  // namespace clipvane
