// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QJsonArray>

/**
 * The parameters of requests to the contacts application, as compact JSON texts: one builder for each action
 * that has parameters, used by handlers and cards alike. Times are milliseconds since the epoch.
 */
namespace RequestText {

/// Members known only by name, for the application to find: [{"name":"李雷","userId":""}]. A repeated name
/// counts once.
QJsonArray membersNamed(const QVector<QString> &names);

/// Members known by id: [{"name":"李雷","userId":"u1"}].
QJsonArray membersPicked(const QVector<UserInfo> &users);

/// A conference that starts at once: {"members":[...]}.
QString createConference(const QJsonArray &members);

/// {"members":[...],"startTime":1709775000000}; a @p startTime of 0 is now.
QString createConference(const QJsonArray &members, qint64 startTime);

/// {"members":[...]}
QString inviteMembers(const QJsonArray &members);
/// The same for membersNamed(@p names), written without building the JSON objects, which were a third of the
/// cost of a spoken invitation.
QString inviteMembersNamed(const QVector<QString> &names);

/// {"conferenceId":"801","password":""}
QString joinConference(const QString &number, const QString &password);

/// {"endTime":1709827200000,"startTime":1709775000000}
QString searchConference(qint64 startTime, qint64 endTime);

/// {"conferenceId":"7"}
QString deleteConference(const QString &conferenceId);

/// {"conferenceId":"7","duration":900000,"participantLimit":5,"startTime":1709775000000}; the duration in
/// milliseconds.
QString updateConference(const ContactDetailMsg &conference);

/// {"userId":"lilei"}. @p name is what was said; the application finds out who is meant.
QString addFriend(const QString &name);

} // namespace RequestText
