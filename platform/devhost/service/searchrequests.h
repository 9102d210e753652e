// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "launchertypes.h"

#include <QObject>
#include <QStringList>

namespace devhost {

class LauncherDesk;

/// Implements org.gnome.Shell.SearchProvider2. GUI thread.
class SearchRequests final : public QObject
{
    Q_OBJECT

public:
    /// @p desk must outlive it.
    explicit SearchRequests(LauncherDesk &desk, QObject *parent = nullptr);

public Q_SLOTS:
    QStringList GetInitialResultSet(const QStringList &terms);
    QStringList GetSubsearchResultSet(const QStringList &previousResults, const QStringList &terms);
    devhost::SearchMetas GetResultMetas(const QStringList &results);
    void ActivateResult(const QString &result, const QStringList &terms, uint timestamp);
    void LaunchSearch(const QStringList &terms, uint timestamp);

private:
    LauncherDesk &m_desk;
};

} // namespace devhost
