// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QSqlDatabase>

#include <optional>

/// The user who is logged in, and the limits in force. Throws DatabaseError.
class SessionRepository
{
public:
    explicit SessionRepository(const QSqlDatabase &database) : m_database(database) {}

    /// The user who is logged in.
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

    /// Whether the database has had its initial content; when somebody has emptied it since, it stays empty.
    bool isSeeded() const;
    void setSeeded(bool seeded);

    /// Records that the request with that id was carried out; the last 1000 are kept.
    void notePerformed(const QString &requestId);
    bool wasPerformed(const QString &requestId) const;

    /// A notice about the database, until the user has read it; empty for none.
    QString notice() const;
    void setNotice(const QString &text);

    /// Logs out and restores the default limits.
    void reset();

private:
    int number(const QString &sql) const;
    void setNumber(const QString &sql, int value);

    QSqlDatabase m_database;
};
