// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lsystempalette.h"

#include "lumo/lguiapplicationhelper.h"

#include <QApplication>
#include <QEvent>

LSystemPalette::LSystemPalette(QObject *parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::paletteChanged, this, &LSystemPalette::paletteChanged);
    qGuiApp->installEventFilter(this);
}

void LSystemPalette::follow()
{
    m_isFollowing = true;
    adopt();
}

void LSystemPalette::stop()
{
    m_isFollowing = false;
}

bool LSystemPalette::eventFilter(QObject *watched, QEvent *event)
{
    // The platform notifies each of its windows once.
    if (event->type() == QEvent::ThemeChange && watched->isWindowType() && m_isFollowing) {
        adopt();
    }
    return QObject::eventFilter(watched, event);
}

void LSystemPalette::adopt()
{
    auto *helper = LGuiApplicationHelper::instance();
    m_isAdopting = true;
    // Back to the desktop's own palette first, which tells its theme.
    helper->setPaletteType(LGuiApplicationHelper::UnknownType);
    helper->setPaletteType(helper->themeType());
    m_isAdopting = false;
}

void LSystemPalette::paletteChanged()
{
    if (!m_isFollowing || m_isAdopting) {
        return;
    }
    // Set by somebody else: this now counts as the desktop's palette.
    auto *helper = LGuiApplicationHelper::instance();
    const QPalette desktop = QGuiApplication::palette();
    m_isAdopting = true;
    helper->setPaletteType(LGuiApplicationHelper::UnknownType);
    QApplication::setPalette(desktop);
    helper->setPaletteType(helper->themeType());
    m_isAdopting = false;
}
