// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"

#include <QSqlDatabase>

#include <optional>

class Statement;

/**
 * Conferences and the seats in them. Points in time are milliseconds since the epoch. Participants carry the
 * names by which @p viewerId knows them. Throws DatabaseError.
 */
class ConferenceRepository
{
public:
    explicit ConferenceRepository(const QSqlDatabase &database) : m_database(database) {}

    std::optional<Conference> byId(qint64 id, const QString &viewerId) const;
    std::optional<Conference> byConfId(const QString &confId, const QString &viewerId) const;
    std::optional<Conference> byDialNumber(const QString &dialNumber, const QString &viewerId) const;

    /// Conferences with a seat for @p userId, even one that was left, that overlap the time from @p fromMsecs
    /// up to but excluding @p toMsecs, by start; at most @p limit. The cost does not depend on the number of
    /// others.
    QVector<Conference> ofUser(const QString &userId, qint64 fromMsecs, qint64 toMsecs, int limit) const;
    /// Its statement, for tests of the query plan.
    static QString ofUserSql();
    /// Everybody's conferences that end after @p nowMsecs, by start; at most @p limit.
    QVector<Conference> endingAfter(qint64 nowMsecs, const QString &viewerId, int limit) const;
    /// Conferences with a seat for @p userId that started after @p fromMsecs and have ended by @p nowMsecs,
    /// latest first; at most @p limit.
    QVector<Conference> endedOfUser(const QString &userId, qint64 fromMsecs, qint64 nowMsecs,
                                    int limit) const;
    /// Likewise for everybody's conferences.
    QVector<Conference> ended(qint64 fromMsecs, qint64 nowMsecs, const QString &viewerId, int limit) const;
    /// The number of conferences that the two above find, without reading them.
    int endedCountOfUser(const QString &userId, qint64 fromMsecs, qint64 nowMsecs, int limit) const;
    int endedCount(qint64 fromMsecs, qint64 nowMsecs, int limit) const;
    /// Everybody's conferences that start after @p fromMsecs, by start; at most @p limit.
    QVector<Conference> startingAfter(qint64 fromMsecs, const QString &viewerId, int limit) const;
    std::optional<Conference> joinedBy(const QString &userId, qint64 nowMsecs) const;

    /// Everybody who has or had a seat, including those who left.
    QVector<Participant> seats(qint64 conferenceId, const QString &viewerId) const;
    /// The attendance of a person; nothing for somebody without a seat.
    std::optional<Attendance> attendance(qint64 conferenceId, const QString &userId) const;
    /// The number of seats taken by people present and people invited.
    int takenSeats(qint64 conferenceId) const;

    /// Stores the record without its participants, assigning a number and an id where they are missing, and
    /// returns it with them.
    Conference add(Conference conference);
    void setTimes(qint64 conferenceId, qint64 startMsecs, qint64 durationMsecs);
    void setTitle(qint64 conferenceId, const QString &title);
    void setPasscode(qint64 conferenceId, const QString &passcode);
    void setParticipantLimit(qint64 conferenceId, int limit);
    void setAttendance(qint64 conferenceId, const QString &userId, Attendance attendance);
    void remove(qint64 conferenceId);
    /// Also forgets how many conferences each person has created.
    void removeAll();

    /// For the limit on how often somebody may create.
    int creationsBetween(const QString &hostId, qint64 afterMsecs, qint64 untilMsecs) const;
    void noteCreation(const QString &hostId, qint64 nowMsecs);

private:
    QString freeDialNumber() const;
    QVector<Conference> readAll(Statement &query, const QString &viewerId) const;

    QSqlDatabase m_database;
};
