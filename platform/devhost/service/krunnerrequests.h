// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "launchertypes.h"

#include <QObject>

namespace devhost {

class LauncherDesk;

/// Implements org.kde.krunner1. GUI thread.
class KRunnerRequests final : public QObject
{
    Q_OBJECT

public:
    /// @p desk must outlive it.
    explicit KRunnerRequests(LauncherDesk &desk, QObject *parent = nullptr);

public Q_SLOTS:
    devhost::KRunnerActions Actions();
    devhost::KRunnerMatches Match(const QString &query);
    void Run(const QString &matchId, const QString &actionId);

private:
    LauncherDesk &m_desk;
};

} // namespace devhost
