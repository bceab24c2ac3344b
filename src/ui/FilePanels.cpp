// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FilePanels.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QTreeView>
#include <array>

#include "ui/Text.h"

namespace clipvane {
namespace {

/// Extensions in upper or lower case: not every dialog ignores case by itself.
constexpr const char* timelineFilter =
    "EDL, TXT, XML, FCPXML and XMEML timelines (*.[eE][dD][lL] *.[tT][xX][tT] *.[xX][mM][lL] "
    "*.[fF][cC][pP][xX][mM][lL] "
    "*.[xX][mM][eE][mM][lL])";

constexpr QSize panelSize{860, 520};
constexpr std::array columnWidths{335, 90, 140, 150};

struct PanelPopup {
    const char* widget;
    const char* label;  ///< beside it
    const char* list;   ///< the name of its list
};

constexpr std::array panelPopups{
    PanelPopup{"lookInCombo", "lookInLabel", "Folders"},
    PanelPopup{"fileTypeCombo", "fileTypeLabel", "File types"},
};

/// The toolkit's own panel: wide enough for a file's facts, and its pop-ups and their lists with
/// names for assistive technology. A desktop's panel has none of these parts.
void dress(QFileDialog& panel) {
    panel.resize(panelSize);
    if (auto* files = panel.findChild<QTreeView*>("treeView")) {
        int column = 0;
        for (const int width : columnWidths) files->setColumnWidth(column++, width);
    }
    for (const auto& [popup, beside, name] : panelPopups) {
        auto* box = panel.findChild<QComboBox*>(popup);
        auto* label = panel.findChild<QLabel*>(beside);
        if (box == nullptr || label == nullptr) continue;
        label->setBuddy(box);
        box->view()->setAccessibleName(name);
    }
}

}  // namespace

QString FilePanels::startFolder() const {
    if (!folder.isEmpty()) return folder;
    const QString working = QDir::currentPath();
    return working.isEmpty() || working == "/" ? QDir::homePath() : working;
}

std::optional<std::filesystem::path> FilePanels::run(QFileDialog& panel) {
    panel.setIconProvider(&kinds);
    dress(panel);
    const bool accepted = panel.exec() == QDialog::Accepted;
    // When a panel and its question close together, some window managers activate no window.
    parent->activateWindow();
    if (!accepted || panel.selectedFiles().isEmpty()) return std::nullopt;
    const QString file = panel.selectedFiles().first();
    folder = QFileInfo(file).absolutePath();
    return std::filesystem::path(QFile::encodeName(file).toStdString());
}

std::optional<std::filesystem::path> FilePanels::runOpenPanel() {
    QFileDialog panel(parent, "Open Timeline", startFolder());
    panel.setFileMode(QFileDialog::ExistingFile);
    panel.setNameFilter(timelineFilter);
    panel.setOption(QFileDialog::HideNameFilterDetails);
    return run(panel);
}

std::optional<std::filesystem::path> FilePanels::runSavePanel(const std::string& defaultName) {
    QFileDialog panel(parent, "Export", startFolder());
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setFileMode(QFileDialog::AnyFile);
    panel.selectFile(toQt(defaultName));
    return run(panel);
}

}  // namespace clipvane
