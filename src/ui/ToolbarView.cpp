// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/ToolbarView.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

#include "ui/Colours.h"
#include "ui/Fonts.h"
#include "ui/FrameRatePopup.h"
#include "ui/TextLabel.h"

namespace clipvane {
namespace {

constexpr int spacing = 8;
constexpr int fpsSpacing = 12;

/// A click leaves the focus where it is, so that the arrow keys go on working in the list.
class ToolbarButton : public QPushButton {
  public:
    explicit ToolbarButton(const QString& title) : QPushButton(title) {
        setFont(systemFont(14, QFont::Medium));
        setFocusPolicy(Qt::TabFocus);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            if (!event->isAutoRepeat()) click();  // a key held down is one press
        } else {
            QPushButton::keyPressEvent(event);
        }
    }
};

QWidget* fpsControlRow(FrameRatePopup* popup) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(fpsSpacing);
    auto* label =
        new TextLabel("Global FPS", systemFont(14, QFont::DemiBold), colours::secondaryText);
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    label->setBuddy(popup);
    layout->addWidget(label);
    layout->addWidget(popup);
    return row;
}

}  // namespace

ToolbarView::ToolbarView(QWidget* parent) : QWidget(parent) {
    setAccessibleName("Toolbar");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    auto* name = new TextLabel("Clipvane", systemFont(26, QFont::Bold), colours::white);
    name->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addWidget(name);
    layout->addStretch(1);
}

void ToolbarView::addButton(const QString& title, const std::function<void()>& action) {
    auto* button = new ToolbarButton(title);
    connect(button, &QPushButton::clicked, this, action);
    layout()->addWidget(button);
}

void ToolbarView::addPopup(FrameRatePopup* popup) {
    layout()->addWidget(fpsControlRow(popup));
}

}  // namespace clipvane
