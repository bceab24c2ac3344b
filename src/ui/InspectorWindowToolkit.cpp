// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QClipboard>
#include <QItemSelectionModel>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <algorithm>

#include "ui/AlertDialog.h"
#include "ui/AppLog.h"
#include "ui/CommentsView.h"
#include "ui/DetailScrollView.h"
#include "ui/DetailStackView.h"
#include "ui/EventTableView.h"
#include "ui/FrameRatePopup.h"
#include "ui/InspectorWindowController.h"
#include "ui/StatusLabel.h"
#include "ui/Text.h"
#include "ui/TextLabel.h"

// What the document commands ask of the toolkit.

namespace clipvane {

std::optional<std::filesystem::path> InspectorWindowController::runOpenPanel() {
    return panels.runOpenPanel();
}

std::optional<std::filesystem::path> InspectorWindowController::runSavePanel(
    const std::string& defaultName) {
    return panels.runSavePanel(defaultName);
}

void InspectorWindowController::runAlert(const Alert& alert) {
    AlertDialog(alert, &mainWindow).exec();
}

std::optional<std::size_t> InspectorWindowController::selectedRow() const {
    const QModelIndexList rows = tableView->selectionModel()->selectedRows();
    if (rows.isEmpty()) return std::nullopt;
    return static_cast<std::size_t>(rows.first().row());
}

void InspectorWindowController::showNewEvents(std::optional<std::size_t> selected) {
    // The table clears its selection with the rows, and moves it before a row is gone.
    const QScopedValueRollback guard(reloading, true);
    tableModel.allIsNew();
    showEvent(selected);
    detailScrollView->showTop();
}

void InspectorWindowController::removeRow(std::size_t row, const std::function<void()>& erase,
                                          std::optional<std::size_t> selected) {
    const QScopedValueRollback guard(reloading, true);
    tableModel.rowGoes(static_cast<int>(row), erase);
    showEvent(selected);
}

void InspectorWindowController::showEvent(std::optional<std::size_t> row) {
    emptyEventsLabel->setHidden(!documentModel.events.empty());
    if (row) {
        const int column = std::max(tableView->currentIndex().column(), 0);
        tableView->setCurrentIndex(tableModel.index(static_cast<int>(*row), column));
    }
    refreshDetails();
}

void InspectorWindowController::refreshTexts() {
    tableModel.textsChanged();
}

void InspectorWindowController::tableViewSelectionDidChange() {
    if (!reloading) refreshDetails();
}

void InspectorWindowController::refreshDetails() {
    const auto row = selectedRow();
    detailStack->setTitle(toQt(detailTitle(documentModel, row)));
    detailStack->insertDetailRows(detailRows(documentModel, row));
    if (row && *row < documentModel.events.size()) {
        const EventView event = documentModel.events[*row];
        commentsView->showComments(event.id(), event.comments);
    } else {
        commentsView->showNothing();
    }
}

void InspectorWindowController::setStatus(const std::string& text) {
    statusLabel->showStatus(toQt(text));
}

std::optional<std::string> InspectorWindowController::editedComments() const {
    if (!commentsView->isEdited()) return std::nullopt;
    return commentsView->comments();
}

std::optional<std::string> InspectorWindowController::selectedFPSTitle() const {
    if (fpsPopup->currentIndex() < 0) return std::nullopt;
    return fpsPopup->currentText().toStdString();
}

void InspectorWindowController::syncFPSPopup() {
    fpsPopup->showRate(documentModel.fps);
}

void InspectorWindowController::setPasteboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(toQt(text));
}

void InspectorWindowController::writeLog(const std::string& message) {
    AppLog::write(message);
}

void InspectorWindowController::whileBusy(const std::function<void()>& work) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    // Shows the cursor, and repaints what a closed panel covered, before the work begins.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    work();
}

}  // namespace clipvane
