// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "namereader.h"

#include "busnames.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QTimer>

namespace devhost {

namespace {

constexpr int AnswerMsecs = 3000;
constexpr int MostNames = 10000;
constexpr int LongestName = 400;

/// Bounds on what another program sends.
QStringList usable(const QStringList &names)
{
    QStringList kept;
    for (const QString &name : names) {
        if (!name.isEmpty() && name.size() <= LongestName && kept.size() < MostNames) {
            kept.append(name);
        }
    }
    return kept;
}

} // namespace

NameReader::NameReader(int retryMsecs)
    : BusClient(QStringLiteral("speakmate-known-names"))
    , m_retryMsecs(retryMsecs)
{
}

void NameReader::start()
{
    if (!connectToBus(AsLongAsItTakes)) {
        if (!m_hasTold) {
            m_hasTold = true;
            Q_EMIT read(m_names);
        }
        QTimer::singleShot(m_retryMsecs, this, &NameReader::start);
        return;
    }
    // From any sender (see SessionBus::connect()): all it does is make this ask again.
    bus().connect(QString(), BusName::contactPath(), BusName::contactInterface(),
                  QStringLiteral("ContactNamesChanged"), this, SLOT(ask()));
    auto *watcher =
        new QDBusServiceWatcher(BusName::service(), bus(), QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &NameReader::ask);
    ask();
}

void NameReader::ask()
{
    if (m_isAsking) {
        m_askAgain = true;
        return;
    }
    m_isAsking = true;
    m_askAgain = false;
    QDBusMessage message = BusName::contactCall(QStringLiteral("ContactNames"));
    message.setAutoStartService(false); // starting the application is up to the plugin
    connect(call(message, AnswerMsecs), &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                const QDBusPendingReply<QStringList> reply = *finished;
                finished->deleteLater();
                m_isAsking = false;
                if (!reply.isError()) {
                    m_names = usable(reply.value());
                }
                m_hasTold = true;
                Q_EMIT read(m_names);
                if (m_askAgain) {
                    ask();
                }
            });
}

} // namespace devhost
