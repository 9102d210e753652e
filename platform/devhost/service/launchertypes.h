// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace devhost {

// The types of the launchers' protocols; the XML files in this folder describe them.

struct KRunnerAction
{
    QString id;
    QString text;
    QString icon;
};
using KRunnerActions = QList<KRunnerAction>;

struct KRunnerMatch
{
    QString id;
    QString line;
    QString icon;
    int type = 0;
    double relevance = 0;
    QVariantMap properties;
};
using KRunnerMatches = QList<KRunnerMatch>;

using SearchMetas = QList<QVariantMap>;

QDBusArgument &operator<<(QDBusArgument &argument, const KRunnerAction &action);
const QDBusArgument &operator>>(const QDBusArgument &argument, KRunnerAction &action);
QDBusArgument &operator<<(QDBusArgument &argument, const KRunnerMatch &match);
const QDBusArgument &operator>>(const QDBusArgument &argument, KRunnerMatch &match);

/// Registers the types with QtDBus. Idempotent.
void registerLauncherTypes();

} // namespace devhost

Q_DECLARE_METATYPE(devhost::KRunnerAction)
Q_DECLARE_METATYPE(devhost::KRunnerMatch)
