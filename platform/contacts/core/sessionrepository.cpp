// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/sessionrepository.h"

#include "core/personrow.h"

std::optional<Person> SessionRepository::user() const
{
    Statement query(m_database, QStringLiteral("SELECT person.user_id, account, name, kind FROM session"
                                               " JOIN person ON person.user_id = session.user_id"));
    if (!query.run().next()) {
        return std::nullopt;
    }
    return readPerson(query);
}

void SessionRepository::login(const QString &userId)
{
    Statement(m_database, QStringLiteral("UPDATE session SET user_id = ?")).bind(userId).run();
}

void SessionRepository::logout()
{
    Statement(m_database, QStringLiteral("UPDATE session SET user_id = NULL")).run();
}

bool SessionRepository::isEngagedElsewhere() const
{
    return number(QStringLiteral("SELECT engaged_elsewhere FROM session")) != 0;
}

void SessionRepository::setEngagedElsewhere(bool engaged)
{
    setNumber(QStringLiteral("UPDATE session SET engaged_elsewhere = ?"), engaged ? 1 : 0);
}

int SessionRepository::friendLimit() const
{
    return number(QStringLiteral("SELECT friend_limit FROM session"));
}

void SessionRepository::setFriendLimit(int limit)
{
    setNumber(QStringLiteral("UPDATE session SET friend_limit = ?"), qMax(0, limit));
}

int SessionRepository::creationsPerMinute() const
{
    return number(QStringLiteral("SELECT creations_per_minute FROM session"));
}

void SessionRepository::setCreationsPerMinute(int limit)
{
    setNumber(QStringLiteral("UPDATE session SET creations_per_minute = ?"), qMax(0, limit));
}

bool SessionRepository::isSeeded() const
{
    return number(QStringLiteral("SELECT seeded FROM session")) != 0;
}

void SessionRepository::setSeeded(bool seeded)
{
    setNumber(QStringLiteral("UPDATE session SET seeded = ?"), seeded ? 1 : 0);
}

void SessionRepository::notePerformed(const QString &requestId)
{
    constexpr int knownRequests = 1000;
    Statement(m_database, QStringLiteral("INSERT OR IGNORE INTO performed_request (request_id) VALUES (?)"))
        .bind(requestId)
        .run();
    Statement(m_database, QStringLiteral("DELETE FROM performed_request"
                                         " WHERE id <= (SELECT max(id) FROM performed_request) - ?"))
        .bind(knownRequests)
        .run();
}

bool SessionRepository::wasPerformed(const QString &requestId) const
{
    Statement query(m_database, QStringLiteral("SELECT 1 FROM performed_request WHERE request_id = ?"));
    return query.bind(requestId).run().next();
}

QString SessionRepository::notice() const
{
    Statement query(m_database, QStringLiteral("SELECT text FROM notice"));
    return query.run().next() ? query.text(0) : QString();
}

void SessionRepository::setNotice(const QString &text)
{
    Statement(m_database, QStringLiteral("DELETE FROM notice")).run();
    if (!text.isEmpty()) {
        Statement(m_database, QStringLiteral("INSERT INTO notice (id, text) VALUES (1, ?)")).bind(text).run();
    }
}

void SessionRepository::reset()
{
    Statement(m_database, QStringLiteral("DELETE FROM session")).run();
    Statement(m_database, QStringLiteral("INSERT INTO session (id, seeded) VALUES (1, 1)")).run();
}

int SessionRepository::number(const QString &sql) const
{
    Statement query(m_database, sql);
    query.run().next();
    return query.smallNumber(0);
}

void SessionRepository::setNumber(const QString &sql, int value)
{
    Statement(m_database, sql).bind(value).run();
}
