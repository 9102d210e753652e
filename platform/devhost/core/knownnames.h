// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "busclient.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace devhost {

class NameReader;

/**
 * The names of the user's contacts, as the contacts application publishes them on the session bus. Follows
 * the application: asks when it appears and whenever it reports a change. Never starts it, and never waits
 * for the bus on the caller's thread.
 */
class KnownNames final : public QObject
{
    Q_OBJECT

public:
    explicit KnownNames(QObject *parent = nullptr);
    ~KnownNames() override;

    /// The current names; waits at most @p msecs for the first answer. For programs without a window.
    QStringList firstNames(int msecs);

Q_SIGNALS:
    void changed(const QStringList &names);

private:
    struct Known;

    KnownNames(NameReader *reader, QObject *parent);

    std::shared_ptr<Known> m_known; ///< shared with the reader, which may outlive this
    BusThread m_thread;
};

} // namespace devhost
