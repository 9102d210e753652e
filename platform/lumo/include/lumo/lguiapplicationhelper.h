// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QGuiApplication>
#include <QObject>
#include <QPalette>
#include <QPointer>

/**
 * Tells whether the desktop is light or dark. The theme is read from the application's palette, so it is
 * right whoever sets that: the platform, a style or setPaletteType(). QGuiApplication::paletteChanged()
 * reports changes. Lives on the GUI thread until the process ends.
 */
class LUMO_EXPORT LGuiApplicationHelper : public QObject
{
    Q_OBJECT

public:
    enum ColorType {
        UnknownType = 0, ///< there is no application yet
        LightType = 1,
        DarkType = 2,
    };
    Q_ENUM(ColorType)

    static LGuiApplicationHelper *instance();

    ColorType themeType() const;

    /// Gives the application the palette of a theme, whatever the desktop has; UnknownType restores the
    /// previous palette. Needs an application.
    void setPaletteType(ColorType type);
    /// The type set last; UnknownType while the desktop's own palette is in use.
    ColorType paletteType() const;

    /// The toolkit's own colours; UnknownType gives the light ones.
    static QPalette standardPalette(ColorType type);
    /// The theme a palette belongs to: dark when its window is darker than its text.
    static ColorType toColorType(const QPalette &palette);

private:
    LGuiApplicationHelper();
    void followApplication();

    QPointer<QGuiApplication> m_followed;
    ColorType m_paletteType = UnknownType;
    QPalette m_desktopPalette;
};
