// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPlainTextEdit>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/UUID.h>

namespace clipvane {

/// The editor of an event's comment: plain text, and nothing that the user did not type changes.
class CommentsView : public QPlainTextEdit {
  public:
    explicit CommentsView(QWidget* parent = nullptr);

    /// Shows the comment of the event `id` for editing. If it is shown already, its
    /// text and undo steps stay; the comment of another event starts with none.
    void showComments(const UUID& id, std::string_view comments);
    /// Shows no comment, cannot be edited, and says what to select first.
    void showNothing();

    /// True once the user has changed the text since it was shown.
    bool isEdited() const;
    /// The text as UTF-8, character for character, with line feeds between its lines. What is still
    /// being composed is not part of it.
    std::string comments() const;
    /// Takes what an input method is still composing as typed.
    void endComposing();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    void setEditable(bool editable);
    void setText(const QString& text);
    void wrapFor(const QString& text);

    std::optional<UUID> shownEvent;
    int shownRevision = 0;
    bool onlyComposing = false;  ///< composing in a text that was not edited
};

}  // namespace clipvane
