// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/ClipvaneStyle.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>

#include "ui/AlertSign.h"
#include "ui/Colours.h"
#include "ui/ControlPainter.h"
#include "ui/Fonts.h"
#include "ui/StandardIcons.h"

namespace clipvane {
namespace {

constexpr int controlHeight = 32;
constexpr int controlPadding = 14;
constexpr int listRowHeight = 26;

template <class Option>
const Option& as(const QStyleOption* option) {
    return *static_cast<const Option*>(option);
}

/// Whether `widget` is the window that holds a pop-up's open list.
bool holdsPopupList(const QWidget* widget) {
    return widget != nullptr && widget->isWindow() &&
           qobject_cast<const QComboBox*>(widget->parentWidget()) != nullptr;
}

/// The edge of a field shows where to type; that of a read-only one is dimmer.
const QColor& fieldEdge(const QWidget* widget) {
    const auto* editor = qobject_cast<const QPlainTextEdit*>(widget);
    return editor != nullptr && editor->isReadOnly() ? colours::panelEdge : colours::fieldEdge;
}

/// A button at the bottom of one of the toolkit's own dialogs.
bool isAlertButton(const QWidget* widget) {
    return qobject_cast<const QPushButton*>(widget) != nullptr &&
           qobject_cast<const QDialogButtonBox*>(widget->parentWidget()) != nullptr;
}

/// Makes the toolkit's own question, such as the one before a file is replaced, look like an alert:
/// the first line in bold, as plain text, since a file's name may look like markup.
void dress(QMessageBox& box) {
    box.setTextFormat(Qt::PlainText);
    const QString text = box.text();
    const auto end = text.lastIndexOf('\n');
    if (end >= 0 && box.informativeText().isEmpty()) {
        box.setText(text.left(end));
        box.setInformativeText(text.mid(end + 1));
    }
    if (auto* rest = box.findChild<QLabel*>("qt_msgbox_informativelabel")) {
        rest->setTextFormat(Qt::PlainText);
        rest->setMinimumWidth(alertTextWidth);
    }
    if (auto* message = box.findChild<QLabel*>("qt_msgbox_label")) {
        message->setFont(systemFont(15, QFont::Bold));
        message->setMinimumWidth(alertTextWidth);
    }
    box.layout()->setContentsMargins(alertMargins);
}

}  // namespace

ClipvaneStyle::ClipvaneStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {
    setObjectName("Clipvane");
}

void ClipvaneStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget) ||
        qobject_cast<QHeaderView*>(widget)) {
        widget->setAttribute(Qt::WA_Hover);
    }
    if (auto* box = qobject_cast<QMessageBox*>(widget)) dress(*box);
    if (isAlertButton(widget)) widget->setFont(systemFont(14, QFont::Medium));
}

void ClipvaneStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    switch (element) {
        case PE_PanelButtonCommand:
            return paintControl(
                *painter, *option,
                as<QStyleOptionButton>(option).features & QStyleOptionButton::DefaultButton);
        case PE_PanelButtonTool:
            if (option->state & (State_MouseOver | State_Sunken | State_On | State_HasFocus)) {
                paintControl(*painter, *option, false);
            }
            return;
        case PE_FrameFocusRect:
        case PE_FrameDefaultButton:
        case PE_FrameStatusBarItem:
        case PE_PanelScrollAreaCorner:
            return;  // the controls show the focus themselves
        case PE_FrameLineEdit:
        case PE_FrameMenu:
            return;  // what they frame has its edge already
        case PE_Frame:
            if (holdsPopupList(widget)) return;  // a menu, which has its edge already
            [[fallthrough]];
        case PE_PanelLineEdit:
            return paintField(*painter, *option, option->palette.color(QPalette::Base),
                              fieldEdge(widget));
        case PE_PanelTipLabel:
        case PE_PanelMenu:
            return paintBox(*painter, option->rect, 0, colours::menu, colours::menuEdge);
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void ClipvaneStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    switch (element) {
        case CE_HeaderSection:
            return drawHeaderSection(as<QStyleOptionHeader>(option), *painter);
        case CE_HeaderLabel:
            return drawHeaderLabel(as<QStyleOptionHeader>(option), *painter);
        case CE_HeaderEmptyArea:
            return painter->fillRect(option->rect, colours::tableHeader);
        case CE_MenuItem:
            return drawMenuItem(as<QStyleOptionMenuItem>(option), *painter);
        case CE_MenuEmptyArea:
            return painter->fillRect(option->rect, colours::menu);
        case CE_FocusFrame:
            if (option->state & State_KeyboardFocusChange) {
                paintFocusRing(*painter, option->rect, 4);
            }
            return;
        default:
            QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void ClipvaneStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    if (control == CC_ComboBox && !as<QStyleOptionComboBox>(option).editable) {
        drawComboBox(as<QStyleOptionComboBox>(option), *painter);
    } else if (control == CC_ScrollBar) {
        drawScrollBar(as<QStyleOptionSlider>(option), *painter, widget);
    } else if (control == CC_ToolButton && option->state.testFlag(State_HasFocus) &&
               option->state.testFlag(State_KeyboardFocusChange)) {
        // A flat one is painted no ground otherwise, and with it no ring.
        auto raised = as<QStyleOptionToolButton>(option);
        raised.state &= ~State_AutoRaise;
        QProxyStyle::drawComplexControl(control, &raised, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QSize ClipvaneStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& size, const QWidget* widget) const {
    switch (type) {
        case CT_PushButton: {
            const auto& button = as<QStyleOptionButton>(option);
            const int width = button.fontMetrics.horizontalAdvance(button.text);
            const int icon = button.icon.isNull() ? 0 : button.iconSize.width() + 4;
            const int least = isAlertButton(widget) ? alertButtonWidth : 0;
            return {std::max(width + icon + 2 * controlPadding, least),
                    std::max(controlHeight, button.fontMetrics.height() + 8)};
        }
        case CT_ComboBox: {
            const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
            return {std::max(size.width() + 52, 100), std::max(usual.height(), controlHeight)};
        }
        case CT_ItemViewItem: {  // a row of the file panel
            const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
            return {usual.width(), std::max(usual.height(), listRowHeight)};
        }
        case CT_MenuItem: {
            const auto& item = as<QStyleOptionMenuItem>(option);
            if (item.menuItemType == QStyleOptionMenuItem::Separator) return {size.width(), 9};
            // An entry of a pop-up comes as wide as its list.
            const bool inList = qobject_cast<const QComboBox*>(widget) != nullptr;
            const int text = inList ? item.fontMetrics.horizontalAdvance(item.text) : size.width();
            return {text + (inList ? 44 : 48), 30};
        }
        default:
            return QProxyStyle::sizeFromContents(type, option, size, widget);
    }
}

int ClipvaneStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const {
    switch (metric) {
        case PM_ScrollBarExtent:
            return 12;
        case PM_ScrollBarSliderMin:
            return 36;
        case PM_ScrollView_ScrollBarSpacing:
        case PM_ScrollView_ScrollBarOverlap:
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
            return 0;
        case PM_DefaultFrameWidth:
        case PM_FocusFrameHMargin:
        case PM_FocusFrameVMargin:
            return 3;
        case PM_HeaderMargin:
            return 8;
        case PM_MenuPanelWidth:
            return 1;
        case PM_MenuVMargin:
        case PM_MenuHMargin:
            return 5;
        case PM_ToolTipLabelFrameWidth:
            return 6;
        case PM_MessageBoxIconSize:
            return alertSignSize;
        case PM_ListViewIconSize:
            return 16;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QIcon ClipvaneStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                  const QWidget* widget) const {
    const QIcon own = drawnIcon(which);
    return own.isNull() ? QProxyStyle::standardIcon(which, option, widget) : own;
}

int ClipvaneStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returnData) const {
    switch (hint) {
        case SH_ComboBox_Popup:
            return 1;
        case SH_ToolTipLabel_Opacity:
            return 255;
        case SH_ComboBox_AllowWheelScrolling:
        case SH_EtchDisabledText:
        case SH_ScrollView_FrameOnlyAroundContents:
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_ScrollBar_LeftClickAbsolutePosition:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

}  // namespace clipvane
