// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <string>

#include "ui/FileKinds.h"

class QFileDialog;
class QWidget;

namespace clipvane {

/// The modal panels that ask for a file. Both start in the folder that was used last in this run;
/// at first in the working directory, or in the home folder if that is `/`.
class FilePanels {
  public:
    explicit FilePanels(QWidget* parent) : parent(parent) {}

    /// A timeline file to open, or nothing when the user cancelled.
    std::optional<std::filesystem::path> runOpenPanel();
    /// A place to save to, its name preset. Replacing a file asks first.
    std::optional<std::filesystem::path> runSavePanel(const std::string& defaultName);

  private:
    QString startFolder() const;
    std::optional<std::filesystem::path> run(QFileDialog& panel);

    QWidget* parent;
    FileKinds kinds;
    QString folder;
};

}  // namespace clipvane
