// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "busclient.h"

#include <QStringList>

namespace devhost {

/// Asks the contacts application for its names. Part of KnownNames.
class NameReader final : public BusClient
{
    Q_OBJECT

public:
    /// Looks for a bus every @p retryMsecs for as long as there is none.
    explicit NameReader(int retryMsecs = RetryMsecs);

    void start() override;

Q_SIGNALS:
    /// Emitted once after start() and again after each change. The names stay when the application stops
    /// answering; they are empty until it has answered once.
    void read(const QStringList &names);

private Q_SLOTS:
    void ask();

private:
    static constexpr int RetryMsecs = 10000;

    const int m_retryMsecs;
    bool m_hasTold = false;
    QStringList m_names; ///< the last that were answered
    bool m_isAsking = false;
    bool m_askAgain = false;
};

} // namespace devhost
