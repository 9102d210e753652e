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
    /// Without a bus it looks for one again every @p retryMsecs.
    explicit NameReader(int retryMsecs = RetryMsecs);

    void start() override;

Q_SIGNALS:
    /// Once after start() and again after each change. What was known stays when the application does not
    /// answer; empty until it has.
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
