// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/Geometry.h"

#include <algorithm>

namespace clipvane {
namespace {

constexpr double margin = 16;
constexpr double gap = 12;
constexpr double toolbarHeight = 42;
constexpr double statusHeight = 20;
constexpr double rightPanelShare = 0.3;
constexpr double rightPanelMinimum = 390;
constexpr double rightPanelMaximum = 470;

constexpr double panelMargin = 14;
constexpr double panelTitleHeight = 24;
constexpr double panelTitleGap = 5;  // between the title and the content

// The detail stack's insets and spacing.
constexpr double stackTop = 8;
constexpr double stackBottom = 12;
constexpr double stackRight = 12;
constexpr double stackSpacing = 14;
constexpr double detailWidth = detailRowSize.width();
constexpr double detailRowHeight = detailRowSize.height();

}  // namespace

QRect flipped(const Rect& rect, double outerHeight) {
    const int left = qRound(rect.x);
    const int top = qRound(outerHeight - (rect.y + rect.height));
    return {left, top, qRound(rect.x + rect.width) - left, qRound(outerHeight - rect.y) - top};
}

MainLayout mainLayout(double width, double height) {
    const double inner = std::max(width - 2 * margin, 0.0);
    const double panels =
        std::max(height - toolbarHeight - statusHeight - 2 * gap - 2 * margin, 0.0);
    const double right = std::clamp(inner * rightPanelShare, rightPanelMinimum, rightPanelMaximum);
    const double left = std::max(inner - right - gap, 0.0);
    const double panelsY = margin + statusHeight + gap;
    return {.toolbar = {margin, height - margin - toolbarHeight, inner, toolbarHeight},
            .status = {margin, margin, inner, statusHeight},
            .leftPanel = {margin, panelsY, left, panels},
            .rightPanel = {margin + left + gap, panelsY, right, panels}};
}

PanelLayout panelLayout(double width, double height) {
    const double inner = std::max(width - 2 * panelMargin, 0.0);
    const double contentHeight = std::max(height - 2 * panelMargin - panelTitleHeight, 0.0);
    const double titleY = panelMargin + contentHeight + panelTitleGap;
    return {.title = {panelMargin, titleY, inner, panelTitleHeight},
            .content = {panelMargin, panelMargin, inner, contentHeight}};
}

double detailStackWidth(double contentWidth) {
    return std::max(contentWidth - 20, detailWidth);
}

DetailStackLayout detailStackLayout(double width, double titleHeight, std::size_t rowCount) {
    const double inner = std::max(width - stackRight, detailWidth);
    DetailStackLayout layout;
    double y = detailStackHeight - stackTop - titleHeight;
    layout.title = {0, y, inner, titleHeight};
    for (std::size_t row = 0; row < rowCount; ++row) {
        y -= stackSpacing + detailRowHeight;
        layout.rows.push_back({0, y, inner, detailRowHeight});
    }
    layout.comments = {0, stackBottom, inner, std::max(y - stackSpacing - stackBottom, 0.0)};
    return layout;
}

DetailRowLayout detailRowLayout(double width) {
    constexpr double valueX = 116;
    return {.key = {0, 3, 104, 20}, .value = {valueX, 1, std::max(width - valueX, 0.0), 23}};
}

CommentsBlockLayout commentsBlockLayout(double width, double height) {
    return {.title = {0, height - 24, width, 20},
            .scroll = {0, 0, width, std::max(height - 34, 0.0)}};
}

}  // namespace clipvane
