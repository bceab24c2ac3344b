// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/HelpWindow.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/Colours.h"
#include "ui/Fonts.h"
#include "ui/FrameMinimumSize.h"
#include "ui/HelpText.h"
#include "ui/Text.h"

namespace clipvane {
namespace {

constexpr QSize contentSize{620, 520};
constexpr QSize minimumFrameSize{520, 420};
constexpr int innerMargin = 18;
constexpr int textInset = 10;

QPlainTextEdit* makeTextView() {
    auto* view = new QPlainTextEdit;
    view->setAccessibleName("Instructions");
    view->setReadOnly(true);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view->setTabChangesFocus(true);
    view->setFrameShape(QFrame::NoFrame);
    view->setFont(systemFont(15));
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QPalette own = view->palette();
    own.setColor(QPalette::Base, colours::helpWindow);
    own.setColor(QPalette::Text, colours::white);
    view->setPalette(own);
    view->document()->setDocumentMargin(textInset);
    view->setPlainText(toQt(helpText()));
    return view;
}

}  // namespace

HelpWindow::HelpWindow() {
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint |
                   Qt::WindowCloseButtonHint);
    setWindowTitle("Clipvane Help");
    setContextMenuPolicy(Qt::NoContextMenu);
    auto* content = new QWidget;
    content->setAutoFillBackground(true);
    QPalette own = palette();
    own.setColor(QPalette::Window, colours::helpWindow);
    content->setPalette(own);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(innerMargin, innerMargin, innerMargin, innerMargin);
    layout->addWidget(makeTextView());
    setCentralWidget(content);
    new FrameMinimumSize(this, minimumFrameSize);
    resize(contentSize);
}

void HelpWindow::centre(const QRect& area, const QMargins& frame) {
    const QSize whole = size().grownBy(frame);
    // On a screen too small for it the title bar stays within reach.
    move(area.left() + std::max((area.width() - whole.width()) / 2, 0),
         area.top() + std::max((area.height() - whole.height()) / 2, 0));
}

void HelpWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // Some window managers minimize the window although it has no button for it.
    if (event->type() == QEvent::WindowStateChange && isMinimized()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

}  // namespace clipvane
