// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/conferencerepository.h"

#include "core/conferencerules.h"
#include "core/databaseerror.h"
#include "core/statement.h"

#include <QRandomGenerator>
#include <QUuid>

#include <algorithm>

namespace {

QString conferenceColumns()
{
    return QStringLiteral(
        " conference.id, conf_id, dial_number, title, host_id, conference.start_msecs, duration_msecs,"
        " participant_limit, passcode, person.kind ");
}

QString conferenceQuery(const QLatin1String condition)
{
    return QStringLiteral("SELECT") + conferenceColumns() +
           QStringLiteral("FROM conference JOIN person ON person.user_id = conference.host_id ") + condition;
}

/// One person's past conferences; see ofUserSql() for the order of the tables.
constexpr char EndedOfUser[] = "FROM participant"
                               " CROSS JOIN conference ON conference.id = participant.conference_id"
                               " CROSS JOIN person ON person.user_id = conference.host_id"
                               " WHERE participant.user_id = ?"
                               " AND participant.start_msecs > ? AND participant.start_msecs <= ?"
                               " AND conference.start_msecs + duration_msecs <= ?";
constexpr char Ended[] = "WHERE conference.start_msecs > ? AND conference.start_msecs <= ?"
                         " AND conference.start_msecs + duration_msecs <= ?";

constexpr char Seats[] = "SELECT person.user_id, person.account, name, coalesce(remark_name, ''), attendance"
                         " FROM participant JOIN person ON person.user_id = participant.user_id"
                         " LEFT JOIN contact ON contact.owner_id = ? AND contact.person_id = person.user_id"
                         " WHERE conference_id = ? ORDER BY place";

Conference readConference(const Statement &row)
{
    Conference conference;
    conference.id = row.number(0);
    conference.confId = row.text(1);
    conference.dialNumber = row.text(2);
    conference.title = row.text(3);
    conference.hostId = row.text(4);
    conference.startMsecs = row.number(5);
    conference.durationMsecs = row.number(6);
    conference.participantLimit = row.smallNumber(7);
    conference.passcode = row.text(8);
    conference.paid = static_cast<AccountKind>(row.smallNumber(9)) == AccountKind::Paying;
    return conference;
}

/// @p seats is a statement over Seats.
QVector<Participant> readSeats(Statement &seats, qint64 conferenceId, const QString &viewerId)
{
    seats.bind(viewerId).bind(conferenceId).run();
    QVector<Participant> participants;
    while (seats.next()) {
        const QString remark = seats.text(3);
        participants.append({seats.text(0), seats.text(1), remark.isEmpty() ? seats.text(2) : remark,
                             static_cast<Attendance>(seats.smallNumber(4))});
    }
    return participants;
}

QVector<Participant> withoutThoseWhoLeft(QVector<Participant> participants)
{
    participants.erase(std::remove_if(participants.begin(), participants.end(),
                                      [](const Participant &participant) {
                                          return participant.attendance == Attendance::Left;
                                      }),
                       participants.end());
    return participants;
}

} // namespace

std::optional<Conference> ConferenceRepository::byId(qint64 id, const QString &viewerId) const
{
    Statement query(m_database, conferenceQuery(QLatin1String("WHERE conference.id = ?")));
    if (!query.bind(id).run().next()) {
        return std::nullopt;
    }
    Conference conference = readConference(query);
    conference.participants = withoutThoseWhoLeft(seats(id, viewerId));
    return conference;
}

std::optional<Conference> ConferenceRepository::byConfId(const QString &confId, const QString &viewerId) const
{
    Statement query(m_database, QStringLiteral("SELECT id FROM conference WHERE conf_id = ?"));
    if (!query.bind(confId).run().next()) {
        return std::nullopt;
    }
    return byId(query.number(0), viewerId);
}

std::optional<Conference> ConferenceRepository::byDialNumber(const QString &dialNumber,
                                                             const QString &viewerId) const
{
    Statement query(m_database, QStringLiteral("SELECT id FROM conference WHERE dial_number = ?"));
    if (!query.bind(dialNumber).run().next()) {
        return std::nullopt;
    }
    return byId(query.number(0), viewerId);
}

QVector<Conference> ConferenceRepository::ofUser(const QString &userId, qint64 fromMsecs, qint64 toMsecs,
                                                 int limit) const
{
    Statement query(m_database, ofUserSql());
    query.bind(userId)
        .bind(fromMsecs - ConferenceRules::LongestMsecs)
        .bind(toMsecs)
        .bind(fromMsecs)
        .bind(limit);
    return readAll(query, userId);
}

QString ConferenceRepository::ofUserSql()
{
    // CROSS JOIN fixes the join order: first the person's range of the index by time, then one conference
    // each.
    return QStringLiteral("SELECT") + conferenceColumns() +
           QStringLiteral("FROM participant"
                          " CROSS JOIN conference ON conference.id = participant.conference_id"
                          " CROSS JOIN person ON person.user_id = conference.host_id"
                          " WHERE participant.user_id = ?"
                          " AND participant.start_msecs > ? AND participant.start_msecs < ?"
                          " AND conference.start_msecs + duration_msecs > ?"
                          " ORDER BY participant.start_msecs LIMIT ?");
}

QVector<Conference> ConferenceRepository::startingAfter(qint64 fromMsecs, const QString &viewerId,
                                                        int limit) const
{
    Statement query(m_database,
                    conferenceQuery(QLatin1String(
                        "WHERE conference.start_msecs > ? ORDER BY conference.start_msecs LIMIT ?")));
    return readAll(query.bind(fromMsecs).bind(limit), viewerId);
}

QVector<Conference> ConferenceRepository::endingAfter(qint64 nowMsecs, const QString &viewerId,
                                                      int limit) const
{
    Statement query(m_database,
                    conferenceQuery(QLatin1String("WHERE conference.start_msecs > ?"
                                                  " AND conference.start_msecs + duration_msecs > ?"
                                                  " ORDER BY conference.start_msecs LIMIT ?")));
    query.bind(nowMsecs - ConferenceRules::LongestMsecs).bind(nowMsecs).bind(limit);
    return readAll(query, viewerId);
}

QVector<Conference> ConferenceRepository::endedOfUser(const QString &userId, qint64 fromMsecs,
                                                      qint64 nowMsecs, int limit) const
{
    Statement query(m_database, QStringLiteral("SELECT") + conferenceColumns() + QLatin1String(EndedOfUser) +
                                    QStringLiteral(" ORDER BY participant.start_msecs DESC LIMIT ?"));
    query.bind(userId).bind(fromMsecs).bind(nowMsecs).bind(nowMsecs).bind(limit);
    return readAll(query, userId);
}

QVector<Conference> ConferenceRepository::ended(qint64 fromMsecs, qint64 nowMsecs, const QString &viewerId,
                                                int limit) const
{
    Statement query(m_database, conferenceQuery(QLatin1String(Ended)) +
                                    QStringLiteral(" ORDER BY conference.start_msecs DESC LIMIT ?"));
    query.bind(fromMsecs).bind(nowMsecs).bind(nowMsecs).bind(limit);
    return readAll(query, viewerId);
}

int ConferenceRepository::endedCountOfUser(const QString &userId, qint64 fromMsecs, qint64 nowMsecs,
                                           int limit) const
{
    Statement query(m_database, QStringLiteral("SELECT count(*) FROM (SELECT 1 ") +
                                    QLatin1String(EndedOfUser) + QStringLiteral(" LIMIT ?)"));
    query.bind(userId).bind(fromMsecs).bind(nowMsecs).bind(nowMsecs).bind(limit).run().next();
    return query.smallNumber(0);
}

int ConferenceRepository::endedCount(qint64 fromMsecs, qint64 nowMsecs, int limit) const
{
    Statement query(m_database, QStringLiteral("SELECT count(*) FROM (SELECT 1 FROM conference ") +
                                    QLatin1String(Ended) + QStringLiteral(" LIMIT ?)"));
    query.bind(fromMsecs).bind(nowMsecs).bind(nowMsecs).bind(limit).run().next();
    return query.smallNumber(0);
}

QVector<Conference> ConferenceRepository::readAll(Statement &query, const QString &viewerId) const
{
    query.run();
    QVector<Conference> conferences;
    while (query.next()) {
        conferences.append(readConference(query));
    }
    // One statement for all: preparing it takes several times as long as running it.
    Statement seatsQuery(m_database, QLatin1String(Seats));
    for (Conference &conference : conferences) {
        conference.participants = withoutThoseWhoLeft(readSeats(seatsQuery, conference.id, viewerId));
    }
    return conferences;
}

std::optional<Conference> ConferenceRepository::joinedBy(const QString &userId, qint64 nowMsecs) const
{
    Statement query(m_database,
                    QStringLiteral("SELECT conference_id FROM participant"
                                   " JOIN conference ON conference.id = participant.conference_id"
                                   " WHERE user_id = ? AND attendance = 1"
                                   " AND participant.start_msecs > ? AND participant.start_msecs <= ?"
                                   " AND conference.start_msecs + duration_msecs > ?"
                                   " ORDER BY participant.start_msecs DESC LIMIT 1"));
    query.bind(userId).bind(nowMsecs - ConferenceRules::LongestMsecs).bind(nowMsecs).bind(nowMsecs);
    if (!query.run().next()) {
        return std::nullopt;
    }
    return byId(query.number(0), userId);
}

std::optional<Attendance> ConferenceRepository::attendance(qint64 conferenceId, const QString &userId) const
{
    Statement query(
        m_database,
        QStringLiteral("SELECT attendance FROM participant WHERE conference_id = ? AND user_id = ?"));
    if (!query.bind(conferenceId).bind(userId).run().next()) {
        return std::nullopt;
    }
    return static_cast<Attendance>(query.smallNumber(0));
}

int ConferenceRepository::takenSeats(qint64 conferenceId) const
{
    Statement query(
        m_database,
        QStringLiteral("SELECT count(*) FROM participant WHERE conference_id = ? AND attendance <> 2"));
    query.bind(conferenceId).run().next();
    return query.smallNumber(0);
}

Conference ConferenceRepository::add(Conference conference)
{
    if (conference.confId.isEmpty()) {
        conference.confId = QUuid::createUuid().toString(QUuid::WithoutBraces);
    }
    if (conference.dialNumber.isEmpty()) {
        conference.dialNumber = freeDialNumber();
    }
    Statement insert(
        m_database,
        QStringLiteral("INSERT INTO conference (conf_id, dial_number, title, host_id, start_msecs,"
                       " duration_msecs, participant_limit, passcode) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"));
    insert.bind(conference.confId)
        .bind(conference.dialNumber)
        .bind(conference.title)
        .bind(conference.hostId)
        .bind(conference.startMsecs)
        .bind(conference.durationMsecs)
        .bind(conference.participantLimit)
        .bind(conference.passcode)
        .run();
    conference.id = insert.lastInsertId();
    return conference;
}

void ConferenceRepository::setTimes(qint64 conferenceId, qint64 startMsecs, qint64 durationMsecs)
{
    Statement(m_database,
              QStringLiteral("UPDATE conference SET start_msecs = ?, duration_msecs = ? WHERE id = ?"))
        .bind(startMsecs)
        .bind(durationMsecs)
        .bind(conferenceId)
        .run();
}

void ConferenceRepository::setTitle(qint64 conferenceId, const QString &title)
{
    Statement(m_database, QStringLiteral("UPDATE conference SET title = ? WHERE id = ?"))
        .bind(title)
        .bind(conferenceId)
        .run();
}

void ConferenceRepository::setPasscode(qint64 conferenceId, const QString &passcode)
{
    Statement(m_database, QStringLiteral("UPDATE conference SET passcode = ? WHERE id = ?"))
        .bind(passcode)
        .bind(conferenceId)
        .run();
}

void ConferenceRepository::setParticipantLimit(qint64 conferenceId, int limit)
{
    Statement(m_database, QStringLiteral("UPDATE conference SET participant_limit = ? WHERE id = ?"))
        .bind(limit)
        .bind(conferenceId)
        .run();
}

void ConferenceRepository::setAttendance(qint64 conferenceId, const QString &userId, Attendance attendance)
{
    Statement(m_database,
              QStringLiteral(
                  "INSERT INTO participant (conference_id, user_id, place, attendance, start_msecs)"
                  " SELECT id, ?, (SELECT count(*) FROM participant WHERE conference_id = conference.id),"
                  " ?, start_msecs FROM conference WHERE id = ?"
                  " ON CONFLICT (conference_id, user_id) DO UPDATE SET attendance = excluded.attendance"))
        .bind(userId)
        .bind(static_cast<int>(attendance))
        .bind(conferenceId)
        .run();
}

void ConferenceRepository::remove(qint64 conferenceId)
{
    Statement(m_database, QStringLiteral("DELETE FROM conference WHERE id = ?")).bind(conferenceId).run();
}

void ConferenceRepository::removeAll()
{
    Statement(m_database, QStringLiteral("DELETE FROM conference")).run();
    Statement(m_database, QStringLiteral("DELETE FROM creation")).run();
}

int ConferenceRepository::creationsBetween(const QString &hostId, qint64 afterMsecs, qint64 untilMsecs) const
{
    Statement query(m_database, QStringLiteral("SELECT count(*) FROM creation WHERE host_id = ?"
                                               " AND created_msecs > ? AND created_msecs <= ?"));
    query.bind(hostId).bind(afterMsecs).bind(untilMsecs).run().next();
    return query.smallNumber(0);
}

void ConferenceRepository::noteCreation(const QString &hostId, qint64 nowMsecs)
{
    // Entries older than a day no longer matter, nor do those from a clock that was ahead.
    Statement(m_database, QStringLiteral("DELETE FROM creation WHERE host_id = ?"
                                         " AND (created_msecs < ? OR created_msecs > ?)"))
        .bind(hostId)
        .bind(nowMsecs - DayMsecs)
        .bind(nowMsecs)
        .run();
    Statement(m_database, QStringLiteral("INSERT INTO creation (host_id, created_msecs) VALUES (?, ?)"))
        .bind(hostId)
        .bind(nowMsecs)
        .run();
}

QString ConferenceRepository::freeDialNumber() const
{
    // Nine digits without a leading zero; a handful of tries is plenty below a hundred million conferences.
    for (int attempt = 0; attempt < 100; ++attempt) {
        const QString number = QString::number(QRandomGenerator::global()->bounded(100000000, 1000000000));
        Statement query(m_database, QStringLiteral("SELECT 1 FROM conference WHERE dial_number = ?"));
        if (!query.bind(number).run().next()) {
            return number;
        }
    }
    throw DatabaseError(QStringLiteral("no free conference number"));
}

QVector<Participant> ConferenceRepository::seats(qint64 conferenceId, const QString &viewerId) const
{
    Statement query(m_database, QLatin1String(Seats));
    return readSeats(query, conferenceId, viewerId);
}
