// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launchertypes.h"

#include <QDBusMetaType>

namespace devhost {

QDBusArgument &operator<<(QDBusArgument &argument, const KRunnerAction &action)
{
    argument.beginStructure();
    argument << action.id << action.text << action.icon;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, KRunnerAction &action)
{
    argument.beginStructure();
    argument >> action.id >> action.text >> action.icon;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const KRunnerMatch &match)
{
    argument.beginStructure();
    argument << match.id << match.line << match.icon << match.type << match.relevance << match.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, KRunnerMatch &match)
{
    argument.beginStructure();
    argument >> match.id >> match.line >> match.icon >> match.type >> match.relevance >> match.properties;
    argument.endStructure();
    return argument;
}

void registerLauncherTypes()
{
    qDBusRegisterMetaType<KRunnerAction>();
    qDBusRegisterMetaType<KRunnerActions>();
    qDBusRegisterMetaType<KRunnerMatch>();
    qDBusRegisterMetaType<KRunnerMatches>();
    qDBusRegisterMetaType<SearchMetas>();
    // The adaptors know the lists under these names.
    qRegisterMetaType<KRunnerActions>("devhost::KRunnerActions");
    qRegisterMetaType<KRunnerMatches>("devhost::KRunnerMatches");
    qRegisterMetaType<SearchMetas>("devhost::SearchMetas");
}

} // namespace devhost
