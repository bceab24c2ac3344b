// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileIconProvider>

namespace clipvane {

/// What the toolkit's file panel says of each file. It looks at names alone: the toolkit's own
/// provider opens every file whose extension it does not know, which is slow in a large folder and
/// never ends at a pipe.
class FileKinds : public QFileIconProvider {
  public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& file) const override;
    /// "EDL timeline", "Folder", "CSV document", "File" ...
    QString type(const QFileInfo& file) const override;
};

}  // namespace clipvane
