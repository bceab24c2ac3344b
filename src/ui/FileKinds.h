// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileIconProvider>

namespace clipvane {

/// The icon and the kind that the toolkit's file panel shows for a file. The name alone decides:
/// the toolkit's own provider opens every file with an unknown extension, which is slow in a large
/// folder and hangs on a pipe.
class FileKinds : public QFileIconProvider {
  public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& file) const override;
    /// "EDL timeline", "Folder", "CSV document", "File" ...
    QString type(const QFileInfo& file) const override;
};

}  // namespace clipvane
