// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "krunnerrequests.h"

#include "launcherdesk.h"

namespace devhost {

namespace {

constexpr int ExactMatch = 100;

const QLatin1String WindowAction("window");
const QLatin1String Icon("speakmate-devhost");

} // namespace

KRunnerRequests::KRunnerRequests(LauncherDesk &desk, QObject *parent) : QObject(parent), m_desk(desk) {}

KRunnerActions KRunnerRequests::Actions()
{
    return {{WindowAction, tr("Run in the voice assistant's window"), QStringLiteral("window-new")}};
}

KRunnerMatches KRunnerRequests::Match(const QString &query)
{
    const LauncherAct act = m_desk.match(query);
    if (act.isEmpty()) {
        return {};
    }
    const QVariantMap properties{{QStringLiteral("category"), tr("Voice Assistant")},
                                 {QStringLiteral("actions"), QStringList{WindowAction}}};
    return {{act.id, act.line, Icon, ExactMatch, 1.0, properties}};
}

void KRunnerRequests::Run(const QString &matchId, const QString &actionId)
{
    m_desk.run(matchId,
               actionId == WindowAction ? LauncherDesk::Place::Window : LauncherDesk::Place::WhereItFits);
}

} // namespace devhost
