// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "actionnames.h"

#include <QDBusMessage>
#include <QString>

/// Addresses the contacts application on the session bus.
namespace BusName {
inline QString service()
{
    return QStringLiteral("com.kelvane.meetlynx");
}
inline QString contactPath()
{
    return QStringLiteral("/com/kelvane/meetlynx");
}
inline QString contactInterface()
{
    return QStringLiteral("com.kelvane.meetlynx.Contact1");
}
inline QString adminPath()
{
    return QStringLiteral("/com/kelvane/meetlynx/admin");
}
inline QDBusMessage contactCall(const QString &method)
{
    return QDBusMessage::createMethodCall(service(), contactPath(), contactInterface(), method);
}
/// A request for the application's window as if its user had asked, so that it may take the focus.
inline QDBusMessage windowRequest(qint64 deadlineMsecs)
{
    QDBusMessage request = contactCall(QStringLiteral("Request"));
    request << QString(ActionName::OpenConferenceList) << QStringLiteral("{\"askedBy\":\"user\"}")
            << deadlineMsecs << QString();
    return request;
}
inline QString deadlinePassedError()
{
    return QStringLiteral("com.kelvane.meetlynx.Error.DeadlinePassed");
}
} // namespace BusName
