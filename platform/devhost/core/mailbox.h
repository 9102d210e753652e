// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/reply.h>

#include <QMutex>
#include <QObject>

#include <functional>

namespace devhost {

/**
 * Where a plugin posts replies, from any thread, even after the host is gone. Replies are delivered by the
 * event loop of the receiver's thread, never within post(): the plugin may be in the middle of handling a
 * click.
 */
class Mailbox
{
public:
    Mailbox(QObject *receiver, std::function<void(const Reply &)> deliver);
    void post(const Reply &reply);
    /// Drops replies from here on. Call on the receiver's thread.
    void close();

private:
    QMutex m_mutex; ///< guards what follows
    QObject *m_receiver;
    std::function<void(const Reply &)> m_deliver;
};

} // namespace devhost
