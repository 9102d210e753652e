// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>
#include <QStringList>

namespace devhost {

/// Asks the contacts application for its names, on a thread of its own. Part of KnownNames.
class NameReader final : public QObject
{
    Q_OBJECT

public:
    ~NameReader() override;

    void start();

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
