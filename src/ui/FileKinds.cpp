// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FileKinds.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <array>
#include <utility>

namespace clipvane {
namespace {

constexpr std::array timelineKinds{
    std::pair{"edl", "EDL timeline"},
    std::pair{"fcpxml", "FCPXML timeline"},
    std::pair{"xmeml", "XMEML timeline"},
};

}  // namespace

QIcon FileKinds::icon(const QFileInfo& file) const {
    return icon(file.isDir() ? Folder : File);
}

QString FileKinds::type(const QFileInfo& file) const {
    if (file.isDir()) return "Folder";
    const QString extension = file.suffix().toLower();
    for (const auto& [known, kind] : timelineKinds) {
        if (extension == QLatin1String(known)) return kind;
    }
    const auto candidates = QMimeDatabase().mimeTypesForFileName(file.fileName());
    return candidates.isEmpty() ? "File" : candidates.first().comment();
}

}  // namespace clipvane
