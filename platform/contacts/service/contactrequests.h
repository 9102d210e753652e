// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusContext>
#include <QObject>
#include <QStringList>

class ContactsBook;

/// Implements com.kelvane.meetlynx.Contact1 by passing every request to the book. On the book's thread.
class ContactRequests : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    explicit ContactRequests(ContactsBook &book, QObject *parent = nullptr);

public Q_SLOTS:
    QString Request(const QString &action, const QString &parameters, qlonglong deadlineMsecs,
                    const QString &requestId);
    bool WasPerformed(const QString &requestId);
    QStringList ContactNames();
    QString Overview();

Q_SIGNALS:
    void ContactNamesChanged();

private:
    ContactsBook &m_book;
};
