// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mailbox.h"

namespace devhost {

Mailbox::Mailbox(QObject *receiver, std::function<void(const Reply &)> deliver)
    : m_receiver(receiver)
    , m_deliver(std::move(deliver))
{
}

void Mailbox::post(const Reply &reply)
{
    const QMutexLocker locker(&m_mutex);
    if (m_receiver == nullptr) {
        return;
    }
    QMetaObject::invokeMethod(
        m_receiver, [deliver = m_deliver, reply] { deliver(reply); }, Qt::QueuedConnection);
}

void Mailbox::close()
{
    const QMutexLocker locker(&m_mutex);
    m_receiver = nullptr;
}

} // namespace devhost
