// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/reminderrepository.h"

#include "core/conferencerules.h"
#include "core/statement.h"

namespace {

/// The most entries of one answer.
constexpr int MostAtOnce = 20;

/// The columns that readAwaited() reads.
QString awaitedColumns()
{
    return QStringLiteral(
        "SELECT conference.id, dial_number, title,"
        " coalesce(nullif((SELECT remark_name FROM contact WHERE owner_id = participant.user_id"
        "  AND person_id = host_id), ''), (SELECT name FROM person WHERE user_id = host_id)),"
        " host_id, conference.start_msecs, conference.start_msecs + duration_msecs,"
        " EXISTS (SELECT 1 FROM shown_reminder WHERE shown_reminder.user_id = participant.user_id"
        "  AND conference_id = conference.id AND kind = 1"
        "  AND shown_reminder.start_msecs = conference.start_msecs),"
        " EXISTS (SELECT 1 FROM shown_reminder WHERE shown_reminder.user_id = participant.user_id"
        "  AND conference_id = conference.id AND kind = 2"
        "  AND shown_reminder.start_msecs = conference.start_msecs),"
        " EXISTS (SELECT 1 FROM untold_invitation WHERE untold_invitation.user_id = participant.user_id"
        "  AND untold_invitation.conference_id = conference.id) ");
}

QVector<AwaitedConference> readAwaited(Statement &query, const QString &userId)
{
    query.run();
    QVector<AwaitedConference> conferences;
    while (query.next()) {
        AwaitedConference conference;
        conference.id = query.number(0);
        conference.dialNumber = query.text(1);
        conference.title = query.text(2);
        conference.hostName = query.text(3);
        conference.isOwn = query.text(4) == userId;
        conference.startMsecs = query.number(5);
        conference.endMsecs = query.number(6);
        conference.isSoonShown = query.smallNumber(7) != 0;
        conference.isStartShown = query.smallNumber(8) != 0;
        conference.isNewInvitation = query.smallNumber(9) != 0;
        conferences.append(conference);
    }
    return conferences;
}

} // namespace

ReminderSettings ReminderRepository::settings() const
{
    Statement query(m_database, QStringLiteral("SELECT is_on, lead_minutes FROM reminder_settings"));
    if (!query.run().next()) {
        return {};
    }
    return {query.smallNumber(0) != 0, query.smallNumber(1)};
}

void ReminderRepository::setSettings(const ReminderSettings &settings)
{
    Statement(m_database, QStringLiteral("INSERT OR REPLACE INTO reminder_settings (id, is_on, lead_minutes)"
                                         " VALUES (1, ?, ?)"))
        .bind(settings.isOn ? 1 : 0)
        .bind(
            qBound(ReminderSettings::MinLeadMinutes, settings.leadMinutes, ReminderSettings::MaxLeadMinutes))
        .run();
}

QVector<AwaitedConference> ReminderRepository::awaited(const QString &userId, qint64 nowMsecs,
                                                       qint64 untilMsecs) const
{
    Statement query(m_database,
                    awaitedColumns() +
                        QStringLiteral("FROM participant"
                                       " CROSS JOIN conference ON conference.id = participant.conference_id"
                                       " WHERE participant.user_id = ? AND participant.attendance = 0"
                                       " AND participant.start_msecs > ? AND participant.start_msecs <= ?"
                                       " AND conference.start_msecs + duration_msecs > ?"
                                       " ORDER BY participant.start_msecs"));
    query.bind(userId).bind(nowMsecs - ConferenceRules::LongestMsecs).bind(untilMsecs).bind(nowMsecs);
    return readAwaited(query, userId);
}

std::optional<qint64> ReminderRepository::nextStart(const QString &userId, qint64 fromMsecs) const
{
    // May include one that needs no reminder: looking once too often is harmless.
    Statement query(m_database, QStringLiteral("SELECT start_msecs FROM participant WHERE user_id = ?"
                                               " AND start_msecs >= ? ORDER BY start_msecs LIMIT 1"));
    if (!query.bind(userId).bind(fromMsecs).run().next()) {
        return std::nullopt;
    }
    return query.number(0);
}

bool ReminderRepository::isAwaited(const QString &userId, qint64 conferenceId, qint64 startMsecs,
                                   qint64 nowMsecs) const
{
    Statement query(m_database,
                    QStringLiteral("SELECT 1 FROM participant"
                                   " JOIN conference ON conference.id = participant.conference_id"
                                   " WHERE participant.user_id = ? AND conference.id = ? AND attendance = 0"
                                   " AND conference.start_msecs = ?"
                                   " AND conference.start_msecs + duration_msecs > ?"));
    return query.bind(userId).bind(conferenceId).bind(startMsecs).bind(nowMsecs).run().next();
}

void ReminderRepository::noteShown(const QString &userId, qint64 conferenceId, ReminderKind kind,
                                   qint64 startMsecs)
{
    // Does nothing for a conference that was deleted meanwhile.
    Statement(
        m_database,
        QStringLiteral("INSERT OR IGNORE INTO shown_reminder (user_id, conference_id, kind, start_msecs)"
                       " SELECT ?, id, ?, ? FROM conference WHERE id = ?"))
        .bind(userId)
        .bind(static_cast<int>(kind))
        .bind(startMsecs)
        .bind(conferenceId)
        .run();
}

QVector<AwaitedConference> ReminderRepository::untoldInvitations(const QString &userId, qint64 nowMsecs) const
{
    Statement query(m_database,
                    awaitedColumns() +
                        QStringLiteral("FROM untold_invitation AS untold"
                                       " CROSS JOIN participant ON participant.user_id = untold.user_id"
                                       "  AND participant.conference_id = untold.conference_id"
                                       " CROSS JOIN conference ON conference.id = participant.conference_id"
                                       " WHERE untold.user_id = ? AND participant.attendance = 0"
                                       " AND conference.start_msecs + duration_msecs > ?"
                                       " ORDER BY conference.start_msecs LIMIT ?"));
    query.bind(userId).bind(nowMsecs).bind(MostAtOnce);
    return readAwaited(query, userId);
}

void ReminderRepository::noteInvitationTold(const QString &userId, qint64 conferenceId)
{
    Statement(m_database,
              QStringLiteral("DELETE FROM untold_invitation WHERE user_id = ? AND conference_id = ?"))
        .bind(userId)
        .bind(conferenceId)
        .run();
}

QVector<Person> ReminderRepository::untoldRequests(const QString &userId) const
{
    Statement query(m_database,
                    QStringLiteral("SELECT person.user_id, person.account, name, coalesce(remark_name, '')"
                                   " FROM untold_request"
                                   " JOIN person ON person.user_id = untold_request.asker_id"
                                   " LEFT JOIN contact ON contact.owner_id = untold_request.user_id"
                                   "  AND contact.person_id = person.user_id"
                                   " WHERE untold_request.user_id = ? ORDER BY person.account LIMIT ?"));
    query.bind(userId).bind(MostAtOnce).run();
    QVector<Person> askers;
    while (query.next()) {
        askers.append({query.text(0), query.text(1), query.text(2), query.text(3)});
    }
    return askers;
}

void ReminderRepository::noteRequestTold(const QString &userId, const QString &askerId)
{
    Statement(m_database, QStringLiteral("DELETE FROM untold_request WHERE user_id = ? AND asker_id = ?"))
        .bind(userId)
        .bind(askerId)
        .run();
}

void ReminderRepository::forgetNews(const QString &userId)
{
    Statement(m_database, QStringLiteral("DELETE FROM untold_invitation WHERE user_id = ?"))
        .bind(userId)
        .run();
    Statement(m_database, QStringLiteral("DELETE FROM untold_request WHERE user_id = ?")).bind(userId).run();
}

void ReminderRepository::forgetNews()
{
    Statement(m_database, QStringLiteral("DELETE FROM untold_invitation")).run();
    Statement(m_database, QStringLiteral("DELETE FROM untold_request")).run();
}
