// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QAccessible>
#include <set>

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

TEST_F(AccessibilityTest, Table_TellsItsHeadersAndCells) {
    open(writeEDL("cut.edl", 2));
    EXPECT_EQ(table().rowCount(), 2);
    EXPECT_EQ(table().columnCount(), 8);
    EXPECT_EQ(table().columnDescription(1), "Clip Name");
    auto* cell = table().cellAt(1, 1);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->text(QAccessible::Name), "Clip 002");
    EXPECT_EQ(cell->rect().height(), 48);
    EXPECT_EQ(table().selectedRows(), QList<int>{0});
    EXPECT_NE(named("Source In", QAccessible::ColumnHeader), nullptr);
}

TEST_F(AccessibilityTest, EmptyCell_StillHasAName) {
    const std::string path = (folder / "empty.xml").string();
    test::writeContent(path,
                       "<xmeml><clipitem><name>n</name><start>0</start><end>5</end><in>0</in>"
                       "<out>5</out></clipitem></xmeml>");
    open(path);
    ASSERT_GT(table().rowCount(), 0);
    for (int column = 0; column < 8; ++column) {
        EXPECT_FALSE(table().cellAt(0, column)->text(QAccessible::Name).isEmpty()) << column;
    }
}

TEST_F(AccessibilityTest, RowRemovedWhileWatched_CellsStayReadable) {
    open(writeEDL("cut.edl", 3));
    static_cast<void>(everything());
    find<EventTableView>()->selectRow(2);
    click("Remove Event");
    EXPECT_EQ(table().rowCount(), 2);
    EXPECT_EQ(table().cellAt(1, 1)->text(QAccessible::Name), "Clip 002");
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
