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
 * The application's whole state and the only way to it: actions, the administration and the window all go
 * through here. Lives on one thread, together with its database.
 */
class ContactsBook : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds since the epoch.
    using Clock = std::function<qint64()>;

    /// Opens the database and loads the sample directory into a new one. Throws DatabaseError.
    explicit ContactsBook(const QString &databaseFile, Clock clock = {}, QObject *parent = nullptr);

    /// Performs one action and returns its answer, a JSON object, for any input. Its changes are then on
    /// disk. Returns a null text when the ticket's deadline has passed; nothing has changed then. Never
    /// throws.
    QString perform(const QString &action, const QString &parameters, const RequestTicket &ticket = {});
    /// Whether the request with that id has changed something. Never throws.
    bool wasPerformed(const QString &requestId) const;

    /// The names by which the user may call people: names and remarks of the contacts. Never throws.
    QStringList contactNames();

    /// Runs @p change in a transaction and emits changed(). Does not throw: returns false, with nothing
    /// changed, when that fails or @p change returns false.
    bool change(const std::function<bool()> &change);

    /// Call with every error caught from reading or writing: after damage, the next start checks the whole
    /// file. Never throws.
    void noteFailure(const std::exception &error) const;

    qint64 nowMsecs() const { return m_clock(); }
    PeopleRepository &people() { return m_people; }
    ConferenceRepository &conferences() { return m_conferences; }
    SessionRepository &session() { return m_session; }
    ReminderRepository &reminders() { return m_reminders; }
    Database &database() { return m_database; }

Q_SIGNALS:
    /// The state may have changed. Emitted within the request, which waits for the slots.
    void changed();
    /// The same, once per burst of changes and after their answers: for slots that read much.
    void changedLately();
    /// The window should be shown: it was asked for, or the user has to log in.
    void windowWanted(WindowFocus focus);

private:
    /// Loads the sample unless the database has had content.
    void seed();

    Clock m_clock;
    QTimer m_burst;
    Database m_database;
    PeopleRepository m_people;
    ConferenceRepository m_conferences;
    SessionRepository m_session;
    ReminderRepository m_reminders;
};
