// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "hostapplication.h"

#include "guarded.h"

#include <desknames.h>
#include <lumo/lstyle.h>

#include <QIcon>

namespace devhost {

HostApplication::HostApplication(char *programName)
    : HostApplication(std::make_unique<Arguments>(Arguments{1, {programName, nullptr}}))
{
}

HostApplication::HostApplication(std::unique_ptr<Arguments> arguments)
    : QApplication(arguments->count, arguments->values)
    , m_arguments(std::move(arguments))
{
    setOrganizationName(DeskNames::Organization);
    setApplicationName(DeskNames::Application);
    setApplicationVersion(QStringLiteral(DEVHOST_VERSION));
    setDesktopFileName(QStringLiteral("speakmate-devhost"));
    setAttribute(Qt::AA_UseHighDpiPixmaps);
    setWindowIcon(QIcon(QStringLiteral(":/devhost/speakmate-devhost.svg")));
    // The desktop's own look, also where the cards are shown on another desktop.
    setStyle(new LStyle);
}

bool HostApplication::notify(QObject *receiver, QEvent *event)
{
    bool isHandled = false;
    const QString thrown = guarded([&] { isHandled = QApplication::notify(receiver, event); });
    if (!thrown.isEmpty()) {
        qCritical("An event handler threw: %s", qUtf8Printable(thrown));
    }
    return isHandled;
}

} // namespace devhost
