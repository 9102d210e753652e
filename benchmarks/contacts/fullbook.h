// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "book/contactsbook.h"

#include "core/statement.h"

#include <QDateTime>
#include <QTemporaryDir>

/// A database with any number of conferences and contacts. The user has ten conferences a day from tomorrow
/// on, so that tomorrow is the same whatever the count.
class FullBook
{
public:
    FullBook(qint64 conferences, qint64 contacts)
        : m_now(QDateTime(QDate(2026, 3, 7), QTime(10, 20)).toMSecsSinceEpoch())
        , book(m_folder.filePath(QStringLiteral("contacts.db")), [this] { return m_now; })
    {
        book.change([this, conferences, contacts] {
            book.conferences().removeAll();
            addConferences(conferences);
            addContacts(contacts);
            return true;
        });
        book.session().setCreationsPerMinute(1 << 30);
        Statement(book.database().handle(), QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")).run();
    }

    static QString user() { return QStringLiteral("u100001"); }
    /// A person of the sample who is in no conference and is not invited to one.
    static QString uninvolved() { return QStringLiteral("u100005"); }
    /// The name of an added contact, counted from 1.
    static QString contactName(qint64 number) { return QStringLiteral("person %1").arg(number); }

    static QString tomorrow()
    {
        const qint64 midnight = QDateTime(QDate(2026, 3, 8), QTime(0, 0)).toMSecsSinceEpoch();
        return QStringLiteral("{\"startTime\":%1,\"endTime\":%2}").arg(midnight).arg(midnight + DayMsecs);
    }

    /// Schedules a conference at a free time; false if it was refused.
    bool schedule()
    {
        m_lastStart += HourMsecs;
        return book
            .perform(QStringLiteral("Create Conference"),
                     QStringLiteral("{\"members\":[{\"name\":\"赵磊\"}],\"startTime\":%1}").arg(m_lastStart))
            .contains(QStringLiteral("\"OK\""));
    }

private:
    /// Adds ten a day from tomorrow on, each with two people.
    void addConferences(qint64 count)
    {
        const qint64 first = QDateTime(QDate(2026, 3, 8), QTime(8, 0)).toMSecsSinceEpoch();
        Statement(book.database().handle(),
                  QStringLiteral(
                      "WITH RECURSIVE n(i) AS (VALUES (0) UNION ALL SELECT i + 1 FROM n WHERE i + 1 < ?)"
                      " INSERT INTO conference (id, conf_id, dial_number, title, host_id, start_msecs,"
                      " duration_msecs, participant_limit) SELECT i + 1, 'c' || i, 100000000 + i, '周会',"
                      " 'u100001', ? + i / 10 * 86400000 + i % 10 * 3600000, 1800000, 20 FROM n"))
            .bind(count)
            .bind(first)
            .run();
        Statement(
            book.database().handle(),
            QStringLiteral("INSERT INTO participant (conference_id, user_id, place, attendance, start_msecs)"
                           " SELECT conference.id, user_id, 0, 0, start_msecs FROM conference, person"
                           " WHERE user_id IN ('u100001', 'u100003')"))
            .run();
    }

    /// Adds contacts to those of the sample.
    void addContacts(qint64 count)
    {
        Statement(book.database().handle(),
                  QStringLiteral(
                      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
                      " INSERT INTO person SELECT printf('p%07d', i), printf('5%07d', i), 'person ' || i, 0"
                      " FROM n"))
            .bind(count)
            .run();
        Statement(
            book.database().handle(),
            QStringLiteral("INSERT INTO contact (owner_id, person_id, remark_name, is_friend)"
                           " SELECT 'u100001', user_id, '', 0 FROM person WHERE user_id GLOB 'p[0-9]*'"))
            .run();
    }

    QTemporaryDir m_folder;
    qint64 m_now;
    qint64 m_lastStart = QDateTime(QDate(2126, 1, 1), QTime(0, 0)).toMSecsSinceEpoch();

public:
    ContactsBook book;
};
