// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/applicationicon.h"

/// A static library's resources are not there by themselves. Outside any namespace, as the macro demands.
static void registerIcons()
{
    Q_INIT_RESOURCE(contacts);
}

QIcon applicationIcon()
{
    registerIcons();
    QIcon bundled(QStringLiteral(":/contacts/icon.svg"));
    bundled.addFile(QStringLiteral(":/contacts/icon-48.png")); // also where there is no plugin for SVG
    return QIcon::fromTheme(QStringLiteral("meetlynx"), bundled);
}
