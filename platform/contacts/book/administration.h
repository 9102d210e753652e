// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QObject>
#include <QStringList>

class ContactsBook;

/**
 * Controls the application's world for demonstrations, tests and the window: logging in and out, kinds of
 * account, conferences that start and end on demand. com.kelvane.meetlynx.Admin1.xml describes each method; a
 * method that returns false has changed nothing. On the book's thread.
 */
class Administration : public QObject
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    explicit Administration(ContactsBook &book, QObject *parent = nullptr);

public Q_SLOTS:
    bool Login(const QString &account);
    void Logout();
    bool SetAccountKind(const QString &account, const QString &kind);
    bool Reset();
    bool LoadSample();
    bool AddPerson(const QString &account, const QString &name, const QString &kind);
    bool AddContact(const QString &ownerAccount, const QString &account, const QString &remark,
                    const QString &friendship);
    QString AddConference(const QString &number, const QString &title, const QString &hostAccount,
                          qlonglong startMsecs, qlonglong durationMsecs, int participantLimit,
                          const QString &passcode, const QStringList &participants);
    bool SetConferenceState(const QString &number, const QString &state);
    void SetEngagedElsewhere(bool engaged);
    void SetFriendLimit(int limit);
    void SetCreationLimit(int perMinute);
    QString Snapshot();

private:
    ContactsBook &m_book;
};
