// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/migrations.h"

namespace {

/// People, conferences and the session.
QStringList firstVersion()
{
    return {
        QStringLiteral("CREATE TABLE person ("
                       " user_id TEXT PRIMARY KEY,"
                       " account TEXT NOT NULL UNIQUE COLLATE NOCASE,"
                       " name TEXT NOT NULL COLLATE NOCASE,"
                       " kind INTEGER NOT NULL CHECK (kind IN (0, 1))"
                       ") WITHOUT ROWID"),
        QStringLiteral("CREATE INDEX person_by_name ON person(name)"),
        QStringLiteral("CREATE TABLE contact ("
                       " owner_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " person_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " remark_name TEXT NOT NULL DEFAULT '' COLLATE NOCASE,"
                       " is_friend INTEGER NOT NULL CHECK (is_friend IN (0, 1)),"
                       " PRIMARY KEY (owner_id, person_id), CHECK (owner_id <> person_id)"
                       ") WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE friend_request ("
                       " owner_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " person_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " PRIMARY KEY (owner_id, person_id), CHECK (owner_id <> person_id)"
                       ") WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE conference ("
                       " id INTEGER PRIMARY KEY,"
                       " conf_id TEXT NOT NULL UNIQUE,"
                       " dial_number TEXT NOT NULL UNIQUE,"
                       " title TEXT NOT NULL,"
                       " host_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " start_msecs INTEGER NOT NULL,"
                       " duration_msecs INTEGER NOT NULL CHECK (duration_msecs BETWEEN 0 AND 86400000),"
                       " participant_limit INTEGER NOT NULL CHECK (participant_limit BETWEEN 2 AND 100),"
                       " passcode TEXT NOT NULL DEFAULT ''"
                       ")"),
        QStringLiteral("CREATE INDEX conference_by_host ON conference(host_id)"),
        QStringLiteral("CREATE INDEX conference_by_start ON conference(start_msecs)"),
        // Repeats the start, so that one person's day is one walk along one index, however many conferences
        // other people have.
        QStringLiteral("CREATE TABLE participant ("
                       " conference_id INTEGER NOT NULL REFERENCES conference(id) ON DELETE CASCADE,"
                       " user_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " place INTEGER NOT NULL,"
                       " attendance INTEGER NOT NULL CHECK (attendance IN (0, 1, 2)),"
                       " start_msecs INTEGER NOT NULL,"
                       " PRIMARY KEY (conference_id, user_id)"
                       ") WITHOUT ROWID"),
        QStringLiteral("CREATE INDEX participant_by_time ON participant(user_id, start_msecs)"),
        QStringLiteral("CREATE TRIGGER conference_moved AFTER UPDATE OF start_msecs ON conference BEGIN"
                       " UPDATE participant SET start_msecs = NEW.start_msecs WHERE conference_id = NEW.id;"
                       " END"),
        QStringLiteral("CREATE TABLE creation ("
                       " host_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " created_msecs INTEGER NOT NULL"
                       ")"),
        QStringLiteral("CREATE INDEX creation_by_time ON creation(host_id, created_msecs)"),
        QStringLiteral("CREATE TABLE session ("
                       " id INTEGER PRIMARY KEY CHECK (id = 1),"
                       " user_id TEXT REFERENCES person(user_id) ON DELETE SET NULL,"
                       " seeded INTEGER NOT NULL DEFAULT 0 CHECK (seeded IN (0, 1)),"
                       " engaged_elsewhere INTEGER NOT NULL DEFAULT 0 CHECK (engaged_elsewhere IN (0, 1)),"
                       " friend_limit INTEGER NOT NULL DEFAULT 500 CHECK (friend_limit >= 0),"
                       " creations_per_minute INTEGER NOT NULL DEFAULT 10 CHECK (creations_per_minute >= 0)"
                       ")"),
        QStringLiteral("INSERT INTO session (id) VALUES (1)"),
    };
}

/// Requests that were carried out, the notice to the user, and an index of remarks by name.
QStringList secondVersion()
{
    return {
        QStringLiteral("CREATE TABLE performed_request ("
                       " id INTEGER PRIMARY KEY AUTOINCREMENT,"
                       " request_id TEXT NOT NULL UNIQUE"
                       ")"),
        QStringLiteral("CREATE TABLE notice (id INTEGER PRIMARY KEY CHECK (id = 1), text TEXT NOT NULL)"),
        QStringLiteral("CREATE INDEX contact_by_remark ON contact(owner_id, remark_name)"),
    };
}

/// Reminders, and what users have not been notified of yet. Existing rows need no notification.
QStringList thirdVersion()
{
    return {
        QStringLiteral("CREATE TABLE reminder_settings ("
                       " id INTEGER PRIMARY KEY CHECK (id = 1),"
                       " is_on INTEGER NOT NULL CHECK (is_on IN (0, 1)),"
                       " lead_minutes INTEGER NOT NULL"
                       ")"),
        // A conference that is moved has another start, so its reminders are shown again.
        QStringLiteral("CREATE TABLE shown_reminder ("
                       " user_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " conference_id INTEGER NOT NULL REFERENCES conference(id) ON DELETE CASCADE,"
                       " kind INTEGER NOT NULL CHECK (kind IN (1, 2)),"
                       " start_msecs INTEGER NOT NULL,"
                       " PRIMARY KEY (conference_id, user_id, kind, start_msecs)"
                       ") WITHOUT ROWID"),
        QStringLiteral("CREATE INDEX shown_reminder_by_user ON shown_reminder(user_id)"),
        QStringLiteral("CREATE TABLE untold_invitation ("
                       " user_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " conference_id INTEGER NOT NULL REFERENCES conference(id) ON DELETE CASCADE,"
                       " PRIMARY KEY (user_id, conference_id)"
                       ") WITHOUT ROWID"),
        QStringLiteral("CREATE INDEX untold_invitation_by_conference ON untold_invitation(conference_id)"),
        QStringLiteral("CREATE TABLE untold_request ("
                       " user_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " asker_id TEXT NOT NULL REFERENCES person(user_id) ON DELETE CASCADE,"
                       " PRIMARY KEY (user_id, asker_id)"
                       ") WITHOUT ROWID"),
        QStringLiteral("CREATE INDEX untold_request_by_asker ON untold_request(asker_id)"),
        QStringLiteral(
            "CREATE TRIGGER invited AFTER INSERT ON participant WHEN NEW.attendance = 0"
            " AND NEW.user_id <> (SELECT host_id FROM conference WHERE id = NEW.conference_id) BEGIN"
            " INSERT OR IGNORE INTO untold_invitation VALUES (NEW.user_id, NEW.conference_id); END"),
        QStringLiteral(
            "CREATE TRIGGER invited_again AFTER UPDATE OF attendance ON participant"
            " WHEN OLD.attendance = 2 AND NEW.attendance = 0"
            " AND NEW.user_id <> (SELECT host_id FROM conference WHERE id = NEW.conference_id) BEGIN"
            " INSERT OR IGNORE INTO untold_invitation VALUES (NEW.user_id, NEW.conference_id); END"),
        QStringLiteral("CREATE TRIGGER asked AFTER INSERT ON friend_request BEGIN"
                       " INSERT OR IGNORE INTO untold_request VALUES (NEW.person_id, NEW.owner_id); END"),
    };
}

/// Pages of contacts by account, and counting friends without the other contacts.
QStringList fourthVersion()
{
    return {
        // A contact without its person, as in a file written without foreign keys, has no account.
        QStringLiteral("DELETE FROM contact WHERE owner_id NOT IN (SELECT user_id FROM person)"
                       " OR person_id NOT IN (SELECT user_id FROM person)"),
        // Repeats the account, so that one page is one walk along one index.
        QStringLiteral("ALTER TABLE contact ADD COLUMN account TEXT NOT NULL DEFAULT '' COLLATE NOCASE"),
        QStringLiteral("UPDATE contact SET account = (SELECT account FROM person WHERE user_id = person_id)"),
        QStringLiteral("CREATE INDEX contact_by_account ON contact(owner_id, account)"),
        QStringLiteral("CREATE INDEX contact_friend ON contact(owner_id) WHERE is_friend = 1"),
        QStringLiteral(
            "CREATE TRIGGER contact_added AFTER INSERT ON contact BEGIN"
            " UPDATE contact SET account = (SELECT account FROM person WHERE user_id = NEW.person_id)"
            " WHERE owner_id = NEW.owner_id AND person_id = NEW.person_id; END"),
        QStringLiteral("CREATE TRIGGER account_changed AFTER UPDATE OF account ON person BEGIN"
                       " UPDATE contact SET account = NEW.account WHERE person_id = NEW.user_id; END"),
        QStringLiteral("CREATE INDEX contact_of_person ON contact(person_id)"),
    };
}

/// Requests to one person, apart from those to others.
QStringList fifthVersion()
{
    return {QStringLiteral("CREATE INDEX friend_request_of_person ON friend_request(person_id)")};
}

} // namespace

const QVector<QStringList> &databaseMigrations()
{
    static const QVector<QStringList> steps{firstVersion(), secondVersion(), thirdVersion(), fourthVersion(),
                                            fifthVersion()};
    return steps;
}
