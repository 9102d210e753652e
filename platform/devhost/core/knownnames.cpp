// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "knownnames.h"

#include "namereader.h"

#include <QMutex>
#include <QSemaphore>

namespace devhost {

struct KnownNames::Known
{
    QMutex mutex;
    QStringList names;
    QSemaphore asked;
};

KnownNames::KnownNames(QObject *parent) : KnownNames(new NameReader, parent) {}

KnownNames::KnownNames(NameReader *reader, QObject *parent)
    : QObject(parent)
    , m_known(std::make_shared<Known>())
    , m_thread(reader)
{
    connect(reader, &NameReader::read, this, &KnownNames::changed);
    // On the reader's thread, so that firstNames() can wait for it.
    connect(
        reader, &NameReader::read, reader,
        [known = m_known](const QStringList &names) {
            const QMutexLocker locker(&known->mutex);
            known->names = names;
            known->asked.release();
        },
        Qt::DirectConnection);
    m_thread.start();
}

KnownNames::~KnownNames() = default;

QStringList KnownNames::firstNames(int msecs)
{
    m_known->asked.tryAcquire(1, msecs);
    const QMutexLocker locker(&m_known->mutex);
    return m_known->names;
}

} // namespace devhost
