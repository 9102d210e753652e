// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QProxyStyle>

QT_BEGIN_NAMESPACE
class QStyleOptionComboBox;
class QStyleOptionSpinBox;
QT_END_NAMESPACE

/**
 * The desktop's look: flat rounded buttons and fields, and a ring in the accent colour around the keyboard
 * focus. All colours come from the palette of the painted widget, so it serves both themes. The toolkit's
 * widgets work without it; to use it, call QApplication::setStyle(new LStyle).
 */
class LUMO_EXPORT LStyle : public QProxyStyle
{
    Q_OBJECT

public:
    LStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    /// LGuiApplicationHelper::standardPalette() of the light theme.
    QPalette standardPalette() const override;

private:
    void drawComboBox(const QStyleOptionComboBox &option, QPainter *painter, const QWidget *widget) const;
    void drawSpinBox(const QStyleOptionSpinBox &option, QPainter *painter, const QWidget *widget) const;
};
