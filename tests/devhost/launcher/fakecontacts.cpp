// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakecontacts.h"

namespace {

const QLatin1String ConnectionName("fake-contacts");

} // namespace

FakeContacts::FakeContacts(const QStringList &names)
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName))
    , m_names(names)
{
    if (!m_bus.registerObject(QStringLiteral("/com/kelvane/meetlynx"), this,
                              QDBusConnection::ExportScriptableContents) ||
        !m_bus.registerService(QStringLiteral("com.kelvane.meetlynx"))) {
        qFatal("cannot put the test's contacts on the bus");
    }
}

FakeContacts::~FakeContacts()
{
    QDBusConnection::disconnectFromBus(ConnectionName);
}

void FakeContacts::change(const QStringList &names)
{
    m_names = names;
    Q_EMIT ContactNamesChanged();
}

QStringList FakeContacts::ContactNames()
{
    ++m_asked;
    if (m_refuses) {
        sendErrorReply(QDBusError::NoReply, QStringLiteral("refused by the test"));
    }
    return m_names;
}

QString FakeContacts::Overview()
{
    ++m_asked;
    return {};
}

QString FakeContacts::Request(const QString & /*action*/, const QString &parameters,
                              qlonglong /*deadlineMsecs*/, const QString & /*requestId*/)
{
    ++m_asked;
    m_parameters.append(parameters);
    return {};
}
