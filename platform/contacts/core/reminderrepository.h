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

/// A conference that the user has a seat in and has neither joined nor left. Milliseconds since the epoch.
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
 * What the user is reminded of, and what they have been told already. The database itself notes each
 * invitation and each friend request, whoever writes it, until it has been told. Throws DatabaseError.
 */
class ReminderRepository
{
public:
    explicit ReminderRepository(const QSqlDatabase &database) : m_database(database) {}

    ReminderSettings settings() const;
    void setSettings(const ReminderSettings &settings);

    /// Those that have not ended at @p nowMsecs and start before @p untilMsecs, by their start. Its cost does
    /// not depend on how many others there are.
    QVector<AwaitedConference> awaited(const QString &userId, qint64 nowMsecs, qint64 untilMsecs) const;
    /// When the first of the user's conferences that starts at or after @p fromMsecs starts.
    std::optional<qint64> nextStart(const QString &userId, qint64 fromMsecs) const;
    /// Whether the conference still starts at @p startMsecs, has not ended, and awaits the user.
    bool isAwaited(const QString &userId, qint64 conferenceId, qint64 startMsecs, qint64 nowMsecs) const;
    void noteShown(const QString &userId, qint64 conferenceId, ReminderKind kind, qint64 startMsecs);

    /// Invitations that the user has not been told, without those to conferences that have ended.
    QVector<AwaitedConference> untoldInvitations(const QString &userId, qint64 nowMsecs) const;
    void noteInvitationTold(const QString &userId, qint64 conferenceId);
    /// Who asked the user to become a friend and was not told yet.
    QVector<Person> untoldRequests(const QString &userId) const;
    void noteRequestTold(const QString &userId, const QString &askerId);
    /// There is nothing to tell @p userId.
    void forgetNews(const QString &userId);
    /// There is nothing to tell anybody.
    void forgetNews();

private:
    QSqlDatabase m_database;
};
