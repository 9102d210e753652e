// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "knownnames.h"

#include "namereader.h"

namespace devhost {

namespace {

constexpr int LongestFarewellMsecs = 200;

} // namespace

KnownNames::KnownNames(QObject *parent) : QObject(parent), m_thread(new QThread)
{
    auto *reader = new NameReader;
    reader->moveToThread(m_thread);
    connect(m_thread, &QThread::started, reader, &NameReader::start);
    connect(m_thread, &QThread::finished, reader, &QObject::deleteLater);
    connect(reader, &NameReader::read, this, &KnownNames::changed);
    // On the reader's thread, so that firstNames() can wait for it.
    connect(
        reader, &NameReader::read, this, [this](const QStringList &names) { take(names); },
        Qt::DirectConnection);
    m_thread->start();
}

KnownNames::~KnownNames()
{
    m_thread->quit();
    if (m_thread->wait(LongestFarewellMsecs)) {
        delete m_thread;
    }
    // Else it is still connecting to a bus that does not answer: left to the process's end.
}

void KnownNames::take(const QStringList &names)
{
    const QMutexLocker locker(&m_mutex);
    m_names = names;
    m_asked.release();
}

QStringList KnownNames::firstNames(int msecs)
{
    m_asked.tryAcquire(1, msecs);
    const QMutexLocker locker(&m_mutex);
    return m_names;
}

} // namespace devhost
