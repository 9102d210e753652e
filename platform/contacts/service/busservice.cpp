// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "service/busservice.h"

#include "book/administration.h"
#include "book/requestticket.h"
#include "busnames.h"
#include "service/contactrequests.h"

#include "admin1adaptor.h"
#include "contact1adaptor.h"

#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDebug>

BusService::BusService(ContactsBook &book, Interfaces interfaces, QObject *parent)
    : QObject(parent)
    , m_connection(QDBusConnection::sessionBus())
    , m_requests(new ContactRequests(book, this))
{
    // Adaptors are children of the objects they stand for.
    new Contact1Adaptor(m_requests);
    if (interfaces == Interfaces::WithAdministration) {
        m_administration = new Administration(book, this);
        new Admin1Adaptor(m_administration);
    }
}

BusService::Start BusService::start()
{
    if (!m_connection.isConnected()) {
        return Start::NoBus;
    }
    if (!m_connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                              QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                              this, SIGNAL(disconnected()))) {
        qCritical() << "The end of the session bus cannot be watched:" << m_connection.lastError().message();
        return Start::Refused;
    }
    // Objects before the name: clients waiting for the name call at once.
    if (!putOnBus(BusName::contactPath(), m_requests) ||
        (m_administration && !putOnBus(BusName::adminPath(), m_administration))) {
        return Start::Refused;
    }
    if (m_connection.registerService(BusName::service())) {
        return Start::Done;
    }
    if (!m_connection.interface()->isServiceRegistered(BusName::service())) {
        qCritical() << "The session bus refuses the name" << BusName::service() << ":"
                    << m_connection.lastError().message();
        return Start::Refused;
    }
    return Start::AlreadyRunning;
}

bool BusService::putOnBus(const QString &path, QObject *object)
{
    if (m_connection.registerObject(path, object)) {
        return true;
    }
    qCritical() << "The object" << path
                << "cannot be put on the session bus:" << m_connection.lastError().message();
    return false;
}

void BusService::askOtherForWindow()
{
    constexpr int timeoutMsecs = 5000;
    const QDBusMessage request = BusName::windowRequest(RequestTicket::nowMsecs() + timeoutMsecs);
    const QDBusMessage reply = m_connection.call(request, QDBus::Block, timeoutMsecs);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        qWarning() << "The running application cannot be asked for its window:" << reply.errorMessage();
    }
}
