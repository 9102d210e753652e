// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lstyle.h"

#include "lumo/lguiapplicationhelper.h"
#include "stylepainting.h"

#include <QPushButton>
#include <QStyleOption>

namespace {

constexpr int ControlHeight = 32;
constexpr int IndicatorExtent = 18;
constexpr int FieldPadding = 4;
constexpr int ButtonPadding = 12; ///< on either side of a text
constexpr int CellMargin = 6;     ///< columns never touch

/// Only after keyboard navigation.
void drawFocusRing(const QStyleOption *option, QPainter *painter)
{
    if (option->state.testFlag(QStyle::State_HasFocus) &&
        option->state.testFlag(QStyle::State_KeyboardFocusChange)) {
        StylePainting::focusRing(*painter, *option);
    }
}

} // namespace

LStyle::LStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void LStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                           const QWidget *widget) const
{
    switch (element) {
    case PE_PanelButtonCommand: {
        const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        const bool flat = button != nullptr && button->features.testFlag(QStyleOptionButton::Flat);
        StylePainting::button(*painter, *option, flat);
        return;
    }
    case PE_FrameDefaultButton:
        return;
    case PE_FrameFocusRect:
        // A button's ring surrounds all of it; the base class would only surround the text.
        if (qobject_cast<const QPushButton *>(widget) == nullptr) {
            drawFocusRing(option, painter);
        }
        return;
    case PE_PanelLineEdit: {
        const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
        if (frame == nullptr || frame->lineWidth <= 0) {
            break; // inside a combo box or a spin box, which draws its own
        }
        QStyleOption field(*option);
        // Line edits are always sunken, and a click changes nothing.
        field.state &= ~(State_Sunken | State_MouseOver);
        StylePainting::field(*painter, field);
        drawFocusRing(option, painter);
        return;
    }
    case PE_FrameLineEdit:
        return;
    case PE_Frame:
        StylePainting::frame(*painter, *option);
        return;
    case PE_FrameTabWidget:
    case PE_FrameTabBarBase:
        return;
    case PE_IndicatorCheckBox:
        StylePainting::checkMark(*painter, *option);
        return;
    case PE_IndicatorRadioButton:
        StylePainting::radioMark(*painter, *option);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void LStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                         const QWidget *widget) const
{
    const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option);
    if (element == CE_HeaderSection && header != nullptr) {
        StylePainting::headerSection(*painter, *option,
                                     header->position == QStyleOptionHeader::End ||
                                         header->position == QStyleOptionHeader::OnlyOneSection);
        return;
    }
    if (element == CE_TabBarTabShape) {
        StylePainting::tab(*painter, *option);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton) {
        drawFocusRing(option, painter);
    }
}

void LStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                const QWidget *widget) const
{
    const auto *comboBox = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const auto *spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    if (control == CC_ComboBox && comboBox != nullptr) {
        drawComboBox(*comboBox, painter, widget);
    } else if (control == CC_SpinBox && spinBox != nullptr) {
        drawSpinBox(*spinBox, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void LStyle::drawComboBox(const QStyleOptionComboBox &option, QPainter *painter, const QWidget *widget) const
{
    StylePainting::field(*painter, option);
    const QRect arrow = proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
    StylePainting::sign(*painter, option, arrow, StylePainting::Sign::Down,
                        option.state.testFlag(State_Enabled));
    drawFocusRing(&option, painter);
}

void LStyle::drawSpinBox(const QStyleOptionSpinBox &option, QPainter *painter, const QWidget *widget) const
{
    using StylePainting::Sign;
    StylePainting::field(*painter, option);
    const bool enabled = option.state.testFlag(State_Enabled);
    const bool arrows = option.buttonSymbols == QAbstractSpinBox::UpDownArrows;
    const auto drawButton = [&](SubControl button, QAbstractSpinBox::StepEnabledFlag step, Sign sign) {
        const QRect room = proxy()->subControlRect(CC_SpinBox, &option, button, widget);
        StylePainting::sign(*painter, option, room, sign, enabled && option.stepEnabled.testFlag(step));
    };
    drawButton(SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, arrows ? Sign::Up : Sign::Plus);
    drawButton(SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, arrows ? Sign::Down : Sign::Minus);
    drawFocusRing(&option, painter);
}

QSize LStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                               const QWidget *widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton) {
        size.setWidth(qMax(size.width(), contents.width() + 2 * ButtonPadding));
    }
    if (type == CT_PushButton || type == CT_ComboBox || type == CT_SpinBox || type == CT_LineEdit) {
        return size.expandedTo(QSize(0, ControlHeight));
    }
    return size;
}

QRect LStyle::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (element == SE_LineEditContents && frame != nullptr && frame->lineWidth > 0) {
        return rect.adjusted(FieldPadding, 0, -FieldPadding, 0); // clear of the rounded edge
    }
    return rect;
}

int LStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return IndicatorExtent;
    case PM_FocusFrameHMargin:
    case PM_HeaderMargin:
        return CellMargin;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QPalette LStyle::standardPalette() const
{
    return LGuiApplicationHelper::standardPalette(LGuiApplicationHelper::LightType);
}
