// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>

/// A fake of the contacts application's interface that hands out names and counts all calls.
class FakeContacts : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.kelvane.meetlynx.Contact1")

public:
    /// Registers on the bus, under the application's name. Ends the test run if it cannot.
    explicit FakeContacts(const QStringList &names);
    ~FakeContacts() override;

    int asked() const { return m_asked; }
    /// Returns the parameters of all requests.
    QStringList parameters() const { return m_parameters; }
    /// Replaces the names and emits ContactNamesChanged().
    void change(const QStringList &names);
    /// Refuse the names from now on, or hand them out again.
    void refuse() { m_refuses = true; }
    void answer() { m_refuses = false; }

public Q_SLOTS:
    Q_SCRIPTABLE QStringList ContactNames();
    Q_SCRIPTABLE QString Overview();
    Q_SCRIPTABLE QString Request(const QString &action, const QString &parameters, qlonglong deadlineMsecs,
                                 const QString &requestId);

Q_SIGNALS:
    Q_SCRIPTABLE void ContactNamesChanged();

private:
    QDBusConnection m_bus;
    QStringList m_names;
    QStringList m_parameters;
    int m_asked = 0;
    bool m_refuses = false;
};
