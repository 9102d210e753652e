// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>

/// The contacts application on the test's bus, as far as it hands out names. Counts every question.
class FakeContacts : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.kelvane.meetlynx.Contact1")

public:
    /// Ends the test run where the name cannot be had.
    explicit FakeContacts(const QStringList &names);
    ~FakeContacts() override;

    int asked() const { return m_asked; }
    /// Of every request.
    QStringList parameters() const { return m_parameters; }
    /// Also tells everybody.
    void change(const QStringList &names);
    /// From now on the names are refused, or handed out again.
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
