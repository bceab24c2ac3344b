// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/PopupAccessibility.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

#include "ui/FrameRatePopup.h"

namespace clipvane {
namespace {

class AccessiblePopup : public QAccessibleWidget {
  public:
    explicit AccessiblePopup(FrameRatePopup* popup)
        : QAccessibleWidget(popup, QAccessible::ComboBox), popup(popup) {}

    QString text(QAccessible::Text kind) const override {
        const bool asksForEntry = kind == QAccessible::Value || kind == QAccessible::Description;
        return asksForEntry ? popup->currentText() : QAccessibleWidget::text(kind);
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

  private:
    FrameRatePopup* popup;
};

QAccessibleInterface* accessiblePopup(const QString&, QObject* object) {
    auto* popup = dynamic_cast<FrameRatePopup*>(object);
    return popup != nullptr ? new AccessiblePopup(popup) : nullptr;
}

}  // namespace

void installPopupAccessibility() {
    QAccessible::installFactory(accessiblePopup);
}

}  // namespace clipvane
