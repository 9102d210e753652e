// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>

struct ActionContext;
class RequestParameters;

// The actions that the application performs, one source file each. Every action answers with the JSON object
// that the caller gets, runs inside the transaction of its context, and throws DatabaseError when that has to
// be rolled back.

/**
 * "Create Conference" {"members", "startTime"}: now without a start time or with 0, else scheduled. A name
 * that several people have, or the only name when nobody has it, creates nothing and says so with "Return";
 * otherwise those who were found are invited, as many as the conference takes.
 */
QJsonObject createConference(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Invite Members" {"members"}: into the conference that the user is in. A name that several people have, or
 * more people than seats, invites nobody; otherwise those who were found are invited.
 */
QJsonObject inviteMembers(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Join Conference" {"conferenceId", "password"}: the conference with that number, as it is said. Host and
 * invited people need no passcode, and invited people have their seat. Being in it already is as good as
 * joining it.
 */
QJsonObject joinConference(const ActionContext &context, const RequestParameters &parameters);

/// "Join My Conference": the user's one conference that runs now; several come back as a list with "Time
/// Overlap".
QJsonObject joinMyConference(const ActionContext &context, const RequestParameters &parameters);

/// "Search Conference" {"startTime", "endTime"}: the user's conferences that overlap that time. A missing
/// start is now, a missing end is never; without parameters that is everything from now on.
QJsonObject searchConference(const ActionContext &context, const RequestParameters &parameters);

/// "Is Conference Host": of the conference that the user is in.
QJsonObject isConferenceHost(const ActionContext &context, const RequestParameters &parameters);

/// "Delete Conference" {"conferenceId"}: one that the user hosts and that has not ended.
QJsonObject deleteConference(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Add Friends" {"userId"}: sends a friend request. What was said is an account, else an id, else the name of
 * exactly one person. Whoever was asked before counts as added.
 */
QJsonObject addFriends(const ActionContext &context, const RequestParameters &parameters);

/// "Exit Conference": leaves the conference that the user is in; it ends when the user is its host.
QJsonObject exitConference(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Open Conference List" {"askedBy"}: brings the window up, where there is a screen for it. It takes the
 * focus only when "user" asked for it. Needs nobody logged in: one logs in there.
 */
QJsonObject openConferenceList(const ActionContext &context, const RequestParameters &parameters);

/**
 * "Update Conference" {"conferenceId", "startTime", "duration", "participantLimit"}: of one that the user
 * hosts; what is missing stays. All or nothing: "Update Failed" when the account may not have it so, or it
 * would overlap or have ended.
 */
QJsonObject updateConference(const ActionContext &context, const RequestParameters &parameters);
