// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMutex>
#include <QObject>
#include <QSemaphore>
#include <QStringList>
#include <QThread>

namespace devhost {

/**
 * The names of the user's contacts, as the contacts application hands them out on the session bus. Follows
 * the application: asks when it appears and whenever it says that they have changed. Never starts it, and
 * never waits for the bus on the caller's thread, because connecting to a stopped bus does not return.
 */
class KnownNames final : public QObject
{
    Q_OBJECT

public:
    explicit KnownNames(QObject *parent = nullptr);
    ~KnownNames() override;

    /// The names known now, waiting at most @p msecs for the first answer. For programs without a window.
    QStringList firstNames(int msecs);

Q_SIGNALS:
    void changed(const QStringList &names);

private:
    friend class NameReader;
    void take(const QStringList &names);

    QThread *m_thread;
    QMutex m_mutex;
    QStringList m_names;
    QSemaphore m_asked;
};

} // namespace devhost
