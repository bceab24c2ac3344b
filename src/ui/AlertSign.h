// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMargins>

class QPainter;
class QRectF;

namespace clipvane {

// What an alert of the program and one of the toolkit have in common.

inline constexpr int alertSignSize = 40;
inline constexpr QMargins alertMargins{24, 24, 24, 20};
inline constexpr int alertButtonWidth = 76;  ///< at least
inline constexpr int alertTextWidth = 330;

enum class AlertSign { notice, warning };

/// A white "i" on blue, or a dark "!" on amber, as large as `rect`, which is square.
void paintAlertSign(QPainter& painter, const QRectF& rect, AlertSign sign);

}  // namespace clipvane
