// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

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
/// A call of @p method of the contacts interface.
inline QDBusMessage contactCall(const QString &method)
{
    return QDBusMessage::createMethodCall(service(), contactPath(), contactInterface(), method);
}
inline QString deadlinePassedError()
{
    return QStringLiteral("com.kelvane.meetlynx.Error.DeadlinePassed");
}
} // namespace BusName
