// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QSqlDatabase>

#include <optional>

/// Who uses the application, and the limits that hold. Throws DatabaseError.
class SessionRepository
{
public:
    explicit SessionRepository(const QSqlDatabase &database) : m_database(database) {}

    /// The person who is logged in.
    std::optional<Person> user() const;
    void login(const QString &userId);
    void logout();

    /// Whether the user is in a conference on another device.
    bool isEngagedElsewhere() const;
    void setEngagedElsewhere(bool engaged);
    int friendLimit() const;
    void setFriendLimit(int limit);
    int creationsPerMinute() const;
    void setCreationsPerMinute(int limit);

    /// Whether the database has had its first content; what somebody emptied later stays empty.
    bool isSeeded() const;
    void setSeeded(bool seeded);

    /// Notes that the request of that id has been carried out; the last 1000 are known.
    void notePerformed(const QString &requestId);
    bool wasPerformed(const QString &requestId) const;

    /// What the user has to be told about the database, until they have read it; empty for nothing.
    QString notice() const;
    void setNotice(const QString &text);

    /// Nobody logged in, limits as they come.
    void reset();

private:
    int number(const QString &sql) const;
    void setNumber(const QString &sql, int value);

    QSqlDatabase m_database;
};
