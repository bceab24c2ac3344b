// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/InspectorWindowController.h"

#include <QItemSelectionModel>
#include <QScrollBar>
#include <QShortcut>
#include <QToolTip>

#include "ui/AppLog.h"
#include "ui/Colours.h"
#include "ui/CommentsBlockView.h"
#include "ui/DetailScrollView.h"
#include "ui/DetailStackView.h"
#include "ui/EventSelectionModel.h"
#include "ui/EventTableView.h"
#include "ui/Fonts.h"
#include "ui/FrameMinimumSize.h"
#include "ui/FrameRatePopup.h"
#include "ui/Geometry.h"
#include "ui/HelpWindow.h"
#include "ui/MainLayoutView.h"
#include "ui/PanelView.h"
#include "ui/StatusLabel.h"
#include "ui/Text.h"
#include "ui/TextLabel.h"
#include "ui/ToolbarView.h"

namespace clipvane {

InspectorWindowController::InspectorWindowController()
    : rootView(new MainLayoutView),
      tableView(new EventTableView),
      emptyEventsLabel(new TextLabel("Open a timeline file to view events",
                                     systemFont(22, QFont::DemiBold), colours::emptyLabel)),
      detailStack(new DetailStackView),
      fpsPopup(new FrameRatePopup),
      commentsView(new CommentsView),
      statusLabel(new StatusLabel("Open an EDL, XML, FCPXML, or XMEML timeline file.")) {
    mainWindow.setWindowTitle("Clipvane");
    mainWindow.setContextMenuPolicy(Qt::NoContextMenu);
    new FrameMinimumSize(&mainWindow, windowMinimumSize);
    AppLog::write("Setting up main UI.");
    buildWindow();
}

InspectorWindowController::~InspectorWindowController() = default;

void InspectorWindowController::buildWindow() {
    mainWindow.setCentralWidget(rootView);
    rootView->toolbar = makeToolbar();
    rootView->status = statusLabel;
    rootView->leftPanel = makeEventPanel();
    rootView->rightPanel = makeDetailPanel();
    // Assistive technology reads them in this order.
    for (QWidget* region :
         {rootView->toolbar, rootView->leftPanel, rootView->rightPanel, rootView->status}) {
        region->setParent(rootView);
    }
    mainWindow.resize(windowSize);
    rootView->layout();
    QWidget::setTabOrder(rootView->toolbar, tableView);
    QWidget::setTabOrder(tableView, commentsView);
    refreshDetails();
}

PanelView* InspectorWindowController::makeEventPanel() {
    tableView->setModel(&tableModel);
    delete tableView->selectionModel();
    tableView->setSelectionModel(
        new EventSelectionModel(&tableModel, tableView, [this] { commentsView->endComposing(); }));
    QObject::connect(tableView->selectionModel(), &QItemSelectionModel::selectionChanged,
                     &mainWindow, [this] { tableViewSelectionDidChange(); });
    emptyEventsLabel->setAlignment(Qt::AlignCenter);
    emptyEventsLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* panel = new PanelView("Event Viewer");
    panel->addContent(tableView);
    panel->addContent(emptyEventsLabel, QMargins(20, 20, 20, 20));
    return panel;
}

PanelView* InspectorWindowController::makeDetailPanel() {
    QObject::connect(commentsView, &QPlainTextEdit::textChanged, &mainWindow,
                     [this] { textDidChange(); });
    auto* comments = new CommentsBlockView(commentsView);
    detailStack->setCommentsBlock(comments);
    detailScrollView = new DetailScrollView(detailStack, comments);
    // The scroll bar stands in the panel's margin, so the stack gets the whole content width.
    const int bar = detailScrollView->verticalScrollBar()->sizeHint().width();
    auto* wholeTexts = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F1), detailStack);
    QObject::connect(wholeTexts, &QShortcut::activated, detailStack, [this] { showWholeTexts(); });
    auto* panel = new PanelView("Selected Event");
    panel->addContent(detailScrollView, QMargins(0, 0, -bar, 0));
    return panel;
}

void InspectorWindowController::showWholeTexts() {
    const QString texts = detailStack->elidedTexts();
    if (texts.isEmpty()) return;
    QToolTip::showText(detailStack->mapToGlobal(QPoint()), toolTipText(texts), detailStack);
}

QWidget* InspectorWindowController::makeToolbar() {
    syncFPSPopup();
    // A click on a button leaves the focus, and what is being composed, in the comments.
    const auto onceComposed = [this](void (InspectorWindowController::*command)()) {
        return [this, command] {
            commentsView->endComposing();
            (this->*command)();
        };
    };
    using Window = InspectorWindowController;
    QObject::connect(fpsPopup, &QComboBox::activated, &mainWindow,
                     onceComposed(&Window::fpsChanged));
    auto* toolbar = new ToolbarView;
    toolbar->addButton("Open Timeline", onceComposed(&Window::openTimeline));
    toolbar->addPopup(fpsPopup);
    toolbar->addButton("Remove Event", onceComposed(&Window::removeSelectedEvent));
    toolbar->addButton("Copy Info", onceComposed(&Window::copySelectedInfo));
    toolbar->addButton("Export CSV", onceComposed(&Window::exportCSV));
    toolbar->addButton("Export EDL", onceComposed(&Window::exportEDL));
    toolbar->addButton("Help", onceComposed(&Window::showHelp));
    return toolbar;
}

}  // namespace clipvane
