// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "service/busservice.h"

#include "book/administration.h"
#include "service/busnames.h"
#include "service/contactrequests.h"

#include "admin1adaptor.h"
#include "contact1adaptor.h"

#include <QDBusMessage>

BusService::BusService(ContactsBook &book, QObject *parent)
    : QObject(parent)
    , m_connection(QDBusConnection::sessionBus())
    , m_requests(new ContactRequests(book, this))
    , m_administration(new Administration(book, this))
{
    // Adaptors belong to the objects that they speak for.
    new Contact1Adaptor(m_requests);
    new Admin1Adaptor(m_administration);
}

BusService::Start BusService::start()
{
    if (!m_connection.isConnected()) {
        return Start::NoBus;
    }
    m_connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                         QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                         SIGNAL(disconnected()));
    // The objects first: whoever waits for the name calls at once.
    m_connection.registerObject(BusName::contactPath(), m_requests);
    m_connection.registerObject(BusName::adminPath(), m_administration);
    if (m_connection.registerService(BusName::service())) {
        return Start::Done;
    }
    askOtherForWindow();
    return Start::AlreadyRunning;
}

void BusService::askOtherForWindow()
{
    constexpr int TimeoutMsecs = 5000;
    QDBusMessage message = QDBusMessage::createMethodCall(BusName::service(), BusName::contactPath(),
                                                          QStringLiteral("com.kelvane.meetlynx.Contact1"),
                                                          QStringLiteral("Request"));
    message << QStringLiteral("Open Conference List") << QString();
    m_connection.call(message, QDBus::Block, TimeoutMsecs);
}
