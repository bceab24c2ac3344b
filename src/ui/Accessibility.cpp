// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/Accessibility.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QPlainTextEdit>

#include "ui/PanelView.h"
#include "ui/PopupAccessibility.h"
#include "ui/StatusLabel.h"
#include "ui/TextAccessibility.h"
#include "ui/ToolbarView.h"

namespace clipvane {
namespace {

/// A notification: screen readers say what it shows without being asked.
class AccessibleStatus : public QAccessibleWidget {
  public:
    explicit AccessibleStatus(StatusLabel* label)
        : QAccessibleWidget(label, QAccessible::Notification), label(label) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? label->text() : QAccessibleWidget::text(kind);
    }

  private:
    StatusLabel* label;
};

QAccessibleInterface* accessibleWidget(const QString&, QObject* object) {
    if (auto* toolbar = dynamic_cast<ToolbarView*>(object)) {
        return new QAccessibleWidget(toolbar, QAccessible::ToolBar);
    }
    if (auto* panel = dynamic_cast<PanelView*>(object)) {
        return new QAccessibleWidget(panel, QAccessible::Grouping);
    }
    if (auto* status = dynamic_cast<StatusLabel*>(object)) return new AccessibleStatus(status);
    auto* popup = qobject_cast<QComboBox*>(object);
    if (popup != nullptr && !popup->isEditable()) return accessiblePopup(popup);
    if (auto* text = qobject_cast<QPlainTextEdit*>(object)) return accessibleText(text);
    return nullptr;
}

}  // namespace

void installAccessibility() {
    QAccessible::installFactory(accessibleWidget);
}

}  // namespace clipvane
