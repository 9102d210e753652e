// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "busstart.h"

#include <QDBusConnection>
#include <QObject>

class Administration;
class ContactRequests;
class ContactsBook;

/// Publishes the application on the session bus: requests and administration, each at its own object, under
/// one name. Owned by main, on the book's thread.
class BusService : public QObject
{
    Q_OBJECT

public:
    using Start = BusStart;

    /// The administration is for trying the application out: it hides nothing and can delete everything, and
    /// any program of the session can call it.
    enum class Interfaces { RequestsOnly, WithAdministration };

    /// @p book must outlive it.
    BusService(ContactsBook &book, Interfaces interfaces, QObject *parent = nullptr);

    Start start();
    /// Shows the window of the process that has the name. Waits for its answer, 5 seconds at most.
    void askOtherForWindow();

Q_SIGNALS:
    /// The bus is gone; nobody is left to serve.
    void disconnected();

private:
    bool putOnBus(const QString &path, QObject *object);

    QDBusConnection m_connection;
    ContactRequests *m_requests;                ///< a child
    Administration *m_administration = nullptr; ///< a child; null when it is not on the bus
};
