// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>

struct ActionContext;
class RequestParameters;

// The actions that the application performs, one source file each. Every action returns the answer as a JSON
// object, runs inside the transaction of its context, and throws DatabaseError when that has to be rolled
// back.

/**
 * "Create Conference" {"members", "startTime", "title", "password"}: now without a start time or with 0,
 * otherwise scheduled. A name that several people have, or a sole name that nobody has, creates nothing and
 * is answered with "Return"; otherwise the people found are invited, up to the conference's limit.
 */
QJsonObject createConference(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Invite Members" {"members"}: into the user's current conference. A name that several people have, or more
 * people than seats, invites nobody; otherwise the people found are invited.
 */
QJsonObject inviteMembers(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Join Conference" {"conferenceId", "password"}: the conference with that number, as spoken. Host and
 * invited people need no passcode, and invited people have their seat. Joining again is a success.
 */
QJsonObject joinConference(const ActionContext &context, const RequestParameters &parameters);

/// "Join My Conference": the user's only running conference; several are answered with "Time Overlap" and
/// their list.
QJsonObject joinMyConference(const ActionContext &context, const RequestParameters &parameters);

/// "Search Conference" {"startTime", "endTime"}: the user's conferences that overlap that time. The start
/// defaults to now, the end to never; without parameters that is everything from now on.
QJsonObject searchConference(const ActionContext &context, const RequestParameters &parameters);

/// "Is Conference Host": of the user's current conference.
QJsonObject isConferenceHost(const ActionContext &context, const RequestParameters &parameters);

/// "Delete Conference" {"conferenceId"}: one that the user hosts and that has not ended.
QJsonObject deleteConference(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Add Friends" {"userId"}: sends a friend request. The value is an account, or else an id, or else the name
 * of exactly one person. People who were asked before count as added.
 */
QJsonObject addFriends(const ActionContext &context, const RequestParameters &parameters);

/// "Exit Conference": leaves the user's current conference, and ends it when the user is its host.
QJsonObject exitConference(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Open Conference List" {"askedBy"}: shows the window, where there is a display for it. It takes the focus
 * only when "user" asked for it. Works logged out, since users log in there.
 */
QJsonObject openConferenceList(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Update Conference" {"conferenceId", "startTime", "duration", "participantLimit", "title", "password"}: of
 * a conference that the user hosts; missing values stay. All or nothing: "Update Failed" when the account
 * does not allow it, or the conference would overlap or have ended.
 */
QJsonObject updateConference(const ActionContext &context, const RequestParameters &parameters);
