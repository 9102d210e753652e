// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lguiapplicationhelper.h"

#include "palettes.h"

#include <QApplication>

LGuiApplicationHelper::LGuiApplicationHelper() = default;

LGuiApplicationHelper *LGuiApplicationHelper::instance()
{
    static LGuiApplicationHelper helper;
    helper.followApplication();
    return &helper;
}

LGuiApplicationHelper::ColorType LGuiApplicationHelper::themeType() const
{
    return qGuiApp == nullptr ? UnknownType : toColorType(QGuiApplication::palette());
}

void LGuiApplicationHelper::setPaletteType(ColorType type)
{
    if (qGuiApp == nullptr || type == m_paletteType) {
        return;
    }
    if (m_paletteType == UnknownType) {
        m_desktopPalette = QGuiApplication::palette();
    }
    m_paletteType = type;
    const QPalette palette = type == UnknownType ? m_desktopPalette : standardPalette(type);
    // Without a QApplication there are no widgets to ask.
    if (qobject_cast<QApplication *>(qGuiApp) != nullptr) {
        QApplication::setPalette(palette);
    } else {
        QGuiApplication::setPalette(palette);
    }
}

LGuiApplicationHelper::ColorType LGuiApplicationHelper::paletteType() const
{
    return m_paletteType;
}

QPalette LGuiApplicationHelper::standardPalette(ColorType type)
{
    return type == DarkType ? Palettes::dark() : Palettes::light();
}

LGuiApplicationHelper::ColorType LGuiApplicationHelper::toColorType(const QPalette &palette)
{
    const int window = palette.color(QPalette::Active, QPalette::Window).lightness();
    const int text = palette.color(QPalette::Active, QPalette::WindowText).lightness();
    return window < text ? DarkType : LightType;
}

void LGuiApplicationHelper::followApplication()
{
    // The helper may be used before there is an application, and tests create several in a row.
    if (m_followed == qGuiApp || qGuiApp == nullptr) {
        return;
    }
    m_followed = qGuiApp;
    m_paletteType = UnknownType;
}
