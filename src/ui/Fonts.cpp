// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/Fonts.h"

#include <QStringList>

namespace clipvane {
namespace {

QFont font(const QStringList& families, QFont::StyleHint hint, int size, QFont::Weight weight) {
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(hint);
    font.setPixelSize(size);
    font.setWeight(weight);
    return font;
}

}  // namespace

QFont systemFont(int size, QFont::Weight weight) {
    return font({"Inter", "Noto Sans", "DejaVu Sans", "sans-serif"}, QFont::SansSerif, size,
                weight);
}

QFont monospacedFont(int size, QFont::Weight weight) {
    QFont face = font({"JetBrains Mono", "Noto Sans Mono", "DejaVu Sans Mono", "monospace"},
                      QFont::Monospace, size, weight);
    face.setStyleStrategy(QFont::PreferNoShaping);
    return face;
}

}  // namespace clipvane
