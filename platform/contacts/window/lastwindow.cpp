// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/lastwindow.h"

#include <QGuiApplication>

void endWithLastWindowUnless(std::function<bool()> isNeeded)
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qGuiApp, &QGuiApplication::lastWindowClosed, qGuiApp, [isNeeded = std::move(isNeeded)] {
        if (!isNeeded()) {
            QCoreApplication::quit();
        }
    });
}
