// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"

#include <QSqlDatabase>

#include <optional>

class Statement;

/**
 * Conferences and the seats in them. Points in time are milliseconds since the epoch. Names of participants
 * are as
 * @p viewerId calls them. Throws DatabaseError.
 */
class ConferenceRepository
{
public:
    explicit ConferenceRepository(const QSqlDatabase &database) : m_database(database) {}

    std::optional<Conference> byId(qint64 id, const QString &viewerId) const;
    std::optional<Conference> byConfId(const QString &confId, const QString &viewerId) const;
    std::optional<Conference> byDialNumber(const QString &dialNumber, const QString &viewerId) const;

    /// Those with a seat for @p userId, also a left one, that overlap the time from @p fromMsecs up to but
    /// without
    /// @p toMsecs, by their start; at most @p limit. Its cost does not depend on how many others there are.
    QVector<Conference> ofUser(const QString &userId, qint64 fromMsecs, qint64 toMsecs, int limit) const;
    /// The statement behind it, for whoever wants to know how the database runs it.
    static QString ofUserSql();
    /// Everybody's that end after @p nowMsecs, by their start; at most @p limit.
    QVector<Conference> endingAfter(qint64 nowMsecs, const QString &viewerId, int limit) const;
    /// Those with a seat for @p userId that started after @p fromMsecs and have ended by @p nowMsecs, the
    /// latest first; at most @p limit.
    QVector<Conference> endedOfUser(const QString &userId, qint64 fromMsecs, qint64 nowMsecs,
                                    int limit) const;
    /// The same of everybody.
    QVector<Conference> ended(qint64 fromMsecs, qint64 nowMsecs, const QString &viewerId, int limit) const;
    /// How many the two above find, without reading them.
    int endedCountOfUser(const QString &userId, qint64 fromMsecs, qint64 nowMsecs, int limit) const;
    int endedCount(qint64 fromMsecs, qint64 nowMsecs, int limit) const;
    /// Everybody's that start after @p fromMsecs, by their start; at most @p limit.
    QVector<Conference> startingAfter(qint64 fromMsecs, const QString &viewerId, int limit) const;
    /// The running conference in which @p userId is at the moment.
    std::optional<Conference> joinedBy(const QString &userId, qint64 nowMsecs) const;

    /// Everybody who has or had a seat, also those who left.
    QVector<Participant> seats(qint64 conferenceId, const QString &viewerId) const;
    /// How the person sits in it; nothing for a stranger.
    std::optional<Attendance> attendance(qint64 conferenceId, const QString &userId) const;
    /// How many of its seats are taken, by people who are there and by people who are invited.
    int takenSeats(qint64 conferenceId) const;

    /// Stores the record without its participants, with a number and an id of its own where it has none, and
    /// gives it back with them.
    Conference add(Conference conference);
    void setTimes(qint64 conferenceId, qint64 startMsecs, qint64 durationMsecs);
    void setTitle(qint64 conferenceId, const QString &title);
    void setPasscode(qint64 conferenceId, const QString &passcode);
    void setParticipantLimit(qint64 conferenceId, int limit);
    void setAttendance(qint64 conferenceId, const QString &userId, Attendance attendance);
    void remove(qint64 conferenceId);
    /// Also forgets who created how many.
    void removeAll();

    /// For the limit on how often somebody may create.
    int creationsBetween(const QString &hostId, qint64 afterMsecs, qint64 untilMsecs) const;
    void noteCreation(const QString &hostId, qint64 nowMsecs);

private:
    QString freeDialNumber() const;
    QVector<Participant> participants(qint64 conferenceId, const QString &viewerId) const;
    QVector<Conference> readAll(Statement &query, const QString &viewerId) const;

    QSqlDatabase m_database;
};
