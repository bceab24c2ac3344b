#include "ui/FilePanels.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "ui/Text.h"

namespace clipvane {
namespace {

/// Extensions in any case, spelled out: not every kind of dialog ignores case by itself.
constexpr const char* timelineFilter =
    "EDL, TXT, XML, FCPXML and XMEML timelines (*.[eE][dD][lL] *.[tT][xX][tT] *.[xX][mM][lL] "
    "*.[fF][cC][pP][xX][mM][lL] "
    "*.[xX][mM][eE][mM][lL])";

std::optional<std::filesystem::path> run(QFileDialog& panel, QString& folder) {
    panel.setDirectory(folder.isEmpty() ? QDir::homePath() : folder);
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty()) return std::nullopt;
    const QString file = panel.selectedFiles().first();
    folder = QFileInfo(file).absolutePath();
    return std::filesystem::path(QFile::encodeName(file).toStdString());
}

}  // namespace

std::optional<std::filesystem::path> FilePanels::runOpenPanel() {
    QFileDialog panel(parent, "Open Timeline");
    panel.setFileMode(QFileDialog::ExistingFile);
    panel.setNameFilter(timelineFilter);
    panel.setOption(QFileDialog::HideNameFilterDetails);
    return run(panel, folder);
}

std::optional<std::filesystem::path> FilePanels::runSavePanel(const std::string& defaultName) {
    QFileDialog panel(parent, "Export");
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setFileMode(QFileDialog::AnyFile);
    panel.setDirectory(folder.isEmpty() ? QDir::homePath() : folder);
    panel.selectFile(toQt(defaultName));
    return run(panel, folder);
}

}  // namespace clipvane
