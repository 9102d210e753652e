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
    NameReader();

    void start() override;

Q_SIGNALS:
    /// Once after start() and again after each change; empty while the application is not there.
    void read(const QStringList &names);

private Q_SLOTS:
    void ask();

private:
    bool m_isAsking = false;
    bool m_askAgain = false;
};

} // namespace devhost
