// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/PopupAccessibility.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>

namespace clipvane {
namespace {

/// The chosen entry is read-only here: to choose, one opens the list.
class AccessiblePopup : public QAccessibleWidget,
                        public QAccessibleTextInterface,
                        public QAccessibleValueInterface {
  public:
    explicit AccessiblePopup(QComboBox* popup)
        : QAccessibleWidget(popup, QAccessible::ComboBox), popup(popup) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::ValueInterface && popup->currentData().isValid()) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? popup->currentText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.hasPopup = true;
        state.expanded = popup->view()->isVisible();
        state.collapsed = !state.expanded;
        return state;
    }

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(popup->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == popup->view() ? 0 : -1;
    }

    QStringList actionNames() const override {
        return {showMenuAction(), pressAction(), setFocusAction()};
    }
    void doAction(const QString& name) override {
        if (name == showMenuAction() || name == pressAction()) {
            popup->showPopup();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

    // The entry as a text, which screen readers say after the name.

    QString text(int start, int end) const override {
        return popup->currentText().mid(start, end - start);
    }
    int characterCount() const override { return static_cast<int>(popup->currentText().size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint& point) const override {
        return rect().contains(point) ? 0 : -1;
    }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    void scrollToSubstring(int, int) override {}

    // The entry as a number.

    QVariant currentValue() const override { return popup->currentData(); }
    QVariant minimumValue() const override { return popup->itemData(0); }
    QVariant maximumValue() const override { return popup->itemData(popup->count() - 1); }
    QVariant minimumStepSize() const override { return {}; }
    void setCurrentValue(const QVariant&) override {}

  private:
    QComboBox* popup;
};

}  // namespace

QAccessibleInterface* accessiblePopup(QComboBox* popup) {
    return new AccessiblePopup(popup);
}

}  // namespace clipvane
