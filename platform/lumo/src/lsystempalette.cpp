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
    // The platform tells its windows, once each.
    if (event->type() == QEvent::ThemeChange && watched->isWindowType() && m_isFollowing) {
        adopt();
    }
    return QObject::eventFilter(watched, event);
}

void LSystemPalette::adopt()
{
    auto *helper = LGuiApplicationHelper::instance();
    m_isAdopting = true;
    // First the desktop's own, which says what it is like.
    helper->setPaletteType(LGuiApplicationHelper::UnknownType);
    helper->setPaletteType(helper->themeType());
    m_isAdopting = false;
}

void LSystemPalette::paletteChanged()
{
    if (!m_isFollowing || m_isAdopting) {
        return;
    }
    // Somebody else gave the application another one: that is the desktop's now.
    auto *helper = LGuiApplicationHelper::instance();
    const QPalette desktop = QGuiApplication::palette();
    m_isAdopting = true;
    helper->setPaletteType(LGuiApplicationHelper::UnknownType);
    QApplication::setPalette(desktop);
    helper->setPaletteType(helper->themeType());
    m_isAdopting = false;
}
