// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "book/requestticket.h"
#include "book/windowfocus.h"
#include "core/conferencerepository.h"
#include "core/database.h"
#include "core/peoplerepository.h"
#include "core/reminderrepository.h"
#include "core/sessionrepository.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

/**
 * The application's whole state and the one door to it: actions, the administration and the window all come
 * through here. Lives on one thread, together with its database.
 */
class ContactsBook : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds since the epoch.
    using Clock = std::function<qint64()>;

    /// Opens the database, and loads the sample directory into a fresh one. Throws DatabaseError.
    explicit ContactsBook(const QString &databaseFile, Clock clock = {}, QObject *parent = nullptr);

    /// Performs one action and answers with a JSON object, whatever came in. What it did is on disk then. A
    /// null text when the ticket's deadline has passed; then nothing has changed. Never throws.
    QString perform(const QString &action, const QString &parameters, const RequestTicket &ticket = {});
    /// Whether the request of that id has changed something. Never throws.
    bool wasPerformed(const QString &requestId) const;

    /// What the user who is logged in may call people: names and remarks of the contacts. Never throws.
    QStringList contactNames();

    /// Runs @p change in a transaction of its own and tells who shows the state. Does not throw: false when
    /// it fails, and then nothing has changed; also when @p change answers false.
    bool change(const std::function<bool()> &change);

    /// For whoever catches what reading or writing threw: after damage, the next start checks the whole file.
    /// Never throws.
    void noteFailure(const std::exception &error) const;

    qint64 nowMsecs() const { return m_clock(); }
    PeopleRepository &people() { return m_people; }
    ConferenceRepository &conferences() { return m_conferences; }
    SessionRepository &session() { return m_session; }
    ReminderRepository &reminders() { return m_reminders; }
    Database &database() { return m_database; }

Q_SIGNALS:
    /// The state may be another than before. Comes within the request that changed it, which waits.
    void changed();
    /// The same, once for a burst of changes and after their answers: for whoever reads much.
    void changedLately();
    /// The user is to see the window: asked for it, or has to log in.
    void windowWanted(WindowFocus focus);

private:
    /// Loads the sample where there was never anything.
    void seed();

    Clock m_clock;
    QTimer m_burst;
    Database m_database;
    PeopleRepository m_people;
    ConferenceRepository m_conferences;
    SessionRepository m_session;
    ReminderRepository m_reminders;
};
