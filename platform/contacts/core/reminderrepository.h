// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"
#include "core/remindersettings.h"

#include <QSqlDatabase>
#include <QVector>

#include <optional>

/// The kinds of reminder that are shown once per conference and start. The numbers are stored.
enum class ReminderKind { Soon = 1, Start = 2 };

/// A conference in which the user has a seat that they have neither joined nor left. Milliseconds since the
/// epoch.
struct AwaitedConference
{
    qint64 id = 0;
    QString dialNumber;
    QString title;
    QString hostName; ///< as the user calls the host
    bool isOwn = false;
    qint64 startMsecs = 0;
    qint64 endMsecs = 0;
    bool isSoonShown = false;
    bool isStartShown = false;
    bool isNewInvitation = false;
};

/**
 * What the user is reminded of, and which notifications were shown. Triggers in the database record each
 * invitation and friend request, whoever writes it, until it has been shown. Throws DatabaseError.
 */
class ReminderRepository
{
public:
    explicit ReminderRepository(const QSqlDatabase &database) : m_database(database) {}

    ReminderSettings settings() const;
    void setSettings(const ReminderSettings &settings);

    /// Conferences that have not ended at @p nowMsecs and start before @p untilMsecs, by start. The cost does
    /// not depend on the number of others.
    QVector<AwaitedConference> awaited(const QString &userId, qint64 nowMsecs, qint64 untilMsecs) const;
    /// The start of the user's first conference that starts at or after @p fromMsecs.
    std::optional<qint64> nextStart(const QString &userId, qint64 fromMsecs) const;
    /// Whether the conference still starts at @p startMsecs, has not ended, and the user has not joined it.
    bool isAwaited(const QString &userId, qint64 conferenceId, qint64 startMsecs, qint64 nowMsecs) const;
    void noteShown(const QString &userId, qint64 conferenceId, ReminderKind kind, qint64 startMsecs);

    /// Invitations not shown to the user yet, except to conferences that have ended.
    QVector<AwaitedConference> untoldInvitations(const QString &userId, qint64 nowMsecs) const;
    void noteInvitationTold(const QString &userId, qint64 conferenceId);
    /// People whose friend request was not shown to the user yet.
    QVector<Person> untoldRequests(const QString &userId) const;
    void noteRequestTold(const QString &userId, const QString &askerId);
    /// Drops everything that was to be shown to @p userId.
    void forgetNews(const QString &userId);
    /// Drops everything that was to be shown to anybody.
    void forgetNews();

private:
    QSqlDatabase m_database;
};
