// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <clipvane/Alert.h>
#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>
#include <clipvane/UUID.h>

namespace clipvane {

enum class LineEnd;
struct NoMemoryAlerts;

/// What the buttons do, step by step, without a toolkit. The window inherits this and lends it the
/// few toolkit operations that the steps need.
///
/// Rows are indexes into the document's events. Texts are UTF-8.
///
/// A command that runs out of memory tells the user and leaves the document, and the file that it
/// was to replace, as they were; or the whole change is made, and the alert says that the window
/// may not show it.
class DocumentCommands {
  public:
    DocumentCommands();
    DocumentCommands(const DocumentCommands&) = delete;
    DocumentCommands& operator=(const DocumentCommands&) = delete;
    virtual ~DocumentCommands();

    // What the buttons and the pop-up call. What fails is told in an alert, success in the status.
    void openTimeline();
    void fpsChanged();
    void removeSelectedEvent();
    void copySelectedInfo();
    void exportCSV();
    void exportEDL();

    /// Stores the comments field into the selected event. A text that the user has not touched
    /// since it was shown is left alone: the field may show it less exactly than it is stored. Line
    /// ends stay of the kind that all of the comment's were before it was typed in.
    void saveCurrentComment();

    /// The comments field's text has changed under the user's hands.
    void textDidChange();

    const TimelineDocument& document() const { return documentModel; }

  protected:
    TimelineDocument documentModel;

  private:
    using Writer = Result<void> (*)(const TimelineDocument&, const std::filesystem::path& url);

    /// What a command that ran out of memory ends with: shows `alert`. To be called while the
    /// exception is handled; any other is thrown on.
    void tellLackOfMemory(const Alert& alert);

    void storeComment();
    void saveFile(const char* defaultName, Writer writer);
    TimelineEvent selectedEvent(std::size_t row) const;
    LineEnd lineEndFor(const EventView& event);

    /// The kind of line end in the comment of the event `typedIn` before the first keystroke:
    /// removing its last line end and undoing that must not change it.
    LineEnd lineEnd;
    std::optional<UUID> typedIn;

    const std::unique_ptr<const NoMemoryAlerts> noMemory;

    // The toolkit's part.

    /// The file that the user chose to open, or nothing when the panel was cancelled.
    virtual std::optional<std::filesystem::path> runOpenPanel() = 0;
    /// The place that the user chose to save to, its name preset to `defaultName`.
    virtual std::optional<std::filesystem::path> runSavePanel(const std::string& defaultName) = 0;
    /// Shows the alert and waits until it is dismissed.
    virtual void runAlert(const Alert& alert) = 0;

    /// The selected row, or nothing. Beyond the events only by mistake.
    virtual std::optional<std::size_t> selectedRow() const = 0;
    /// The document has other events, or none: shows them, with the row `selected` alone selected
    /// and in the details.
    virtual void showNewEvents(std::optional<std::size_t> selected) = 0;
    /// Takes `row` out of the list while `erase`, which cannot fail, takes its event out of the
    /// document. Then `selected` alone is selected and in the details.
    virtual void removeRow(std::size_t row, const std::function<void()>& erase,
                           std::optional<std::size_t> selected) = 0;
    /// The same events have other texts: shows them in the list.
    virtual void refreshTexts() = 0;
    /// Shows the selected event, or that none is, in the details.
    virtual void refreshDetails() = 0;
    virtual void setStatus(const std::string& text) = 0;

    /// The comments field's text, or nothing when the user has not changed it since it was set.
    /// Line ends are line feeds.
    virtual std::optional<std::string> editedComments() const = 0;
    /// The title of the chosen frame-rate entry, such as "25 fps", or nothing.
    virtual std::optional<std::string> selectedFPSTitle() const = 0;
    /// Makes the pop-up show the document's rate.
    virtual void syncFPSPopup() = 0;
    virtual void setPasteboardText(const std::string& text) = 0;
    virtual void writeLog(const std::string& message) = 0;

    /// Runs `work`, which reads, converts or writes a whole timeline, under a wait cursor. Another
    /// command may run first, while the cursor is shown, so that `work` looks up what it needs
    /// itself.
    virtual void whileBusy(const std::function<void()>& work) = 0;
};

}  // namespace clipvane
