// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "searchrequests.h"

#include "launcherdesk.h"

namespace devhost {

SearchRequests::SearchRequests(LauncherDesk &desk, QObject *parent) : QObject(parent), m_desk(desk) {}

QStringList SearchRequests::GetInitialResultSet(const QStringList &terms)
{
    const LauncherAct act = m_desk.match(terms.join(QLatin1Char(' ')));
    return act.isEmpty() ? QStringList() : QStringList{act.id};
}

QStringList SearchRequests::GetSubsearchResultSet(const QStringList & /*previousResults*/,
                                                  const QStringList &terms)
{
    return GetInitialResultSet(terms);
}

SearchMetas SearchRequests::GetResultMetas(const QStringList &results)
{
    SearchMetas metas;
    for (const QString &id : results) {
        const LauncherAct act = m_desk.find(id);
        if (!act.isEmpty()) {
            metas.append({{QStringLiteral("id"), act.id},
                          {QStringLiteral("name"), act.line},
                          {QStringLiteral("description"), tr("Voice Assistant")},
                          {QStringLiteral("gicon"), QStringLiteral("speakmate-devhost")}});
        }
    }
    return metas;
}

void SearchRequests::ActivateResult(const QString &result, const QStringList & /*terms*/, uint /*timestamp*/)
{
    m_desk.run(result, LauncherDesk::Place::WhereItFits);
}

void SearchRequests::LaunchSearch(const QStringList &terms, uint /*timestamp*/)
{
    m_desk.openWith(terms.join(QLatin1Char(' ')));
}

} // namespace devhost
