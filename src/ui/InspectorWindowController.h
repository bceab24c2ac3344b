// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <memory>

#include <clipvane/DocumentCommands.h>
#include "ui/EventTableModel.h"
#include "ui/FilePanels.h"

namespace clipvane {

class CommentsView;
class DetailScrollView;
class DetailStackView;
class EventTableView;
class FrameRatePopup;
class HelpWindow;
class MainLayoutView;
class PanelView;
class StatusLabel;
class TextLabel;

/// The one window and all that is in it; lends the document commands their toolkit operations.
class InspectorWindowController : public DocumentCommands {
  public:
    /// Builds the window, which is not shown yet.
    InspectorWindowController();
    ~InspectorWindowController() override;

    /// Shows the window in front of the others, active, and as large as the screen allows.
    void showWindow();
    void showHelp();

    QWidget* window() { return &mainWindow; }

  private:
    void buildWindow();
    QWidget* makeToolbar();
    PanelView* makeEventPanel();
    PanelView* makeDetailPanel();
    void tableViewSelectionDidChange();
    void showWholeTexts();
    void showEvent(std::optional<std::size_t> row);
    void fitScreen();

    std::optional<std::filesystem::path> runOpenPanel() override;
    std::optional<std::filesystem::path> runSavePanel(const std::string& defaultName) override;
    void runAlert(const Alert& alert) override;
    std::optional<std::size_t> selectedRow() const final;
    void showNewEvents(std::optional<std::size_t> selected) override;
    void removeRow(std::size_t row, const std::function<void()>& erase,
                   std::optional<std::size_t> selected) override;
    void refreshTexts() override;
    void refreshDetails() final;
    void setStatus(const std::string& text) override;
    std::optional<std::string> editedComments() const override;
    std::optional<std::string> selectedFPSTitle() const override;
    void syncFPSPopup() final;
    void setPasteboardText(const std::string& text) override;
    void writeLog(const std::string& message) override;
    void whileBusy(const std::function<void()>& work) override;

    EventTableModel tableModel{documentModel};
    QMainWindow mainWindow;
    FilePanels panels{&mainWindow};
    std::unique_ptr<HelpWindow> helpWindow;  ///< null until first shown
    MainLayoutView* rootView;                // these and all below are the window's
    EventTableView* tableView;
    TextLabel* emptyEventsLabel;
    DetailScrollView* detailScrollView;
    DetailStackView* detailStack;
    FrameRatePopup* fpsPopup;
    CommentsView* commentsView;
    StatusLabel* statusLabel;
    bool reloading = false;  ///< the selection changes, and the details follow later
};

}  // namespace clipvane
