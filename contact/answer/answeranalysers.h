// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

/**
 * Reads the contacts application's answers: one analyser per kind of request, because each gives the outcome
 * words other result codes (resultcodes.h). A record is written only if the outcome carries one. Malformed
 * answers end in a code as well; nothing throws.
 */
namespace AnswerAnalyser {

/// For requests whose answer is one word: friends, deleting, leaving, asking who hosts.
int general(const QString &answer);

/// @p isSchedule and @p startMsecs (since the epoch) are what was requested, and go into @p detail.
int create(const QString &answer, bool isSchedule, qint64 startMsecs, ContactCreatedConferenceDetail &detail);

int invite(const QString &answer, ContactInviteMemberDetail &detail);

/// @p conferences receives those to choose from when several are running.
int join(const QString &answer, QVector<ContactDetailMsg> &conferences);

int query(const QString &answer, QVector<ContactDetailMsg> &conferences);

int update(const QString &answer, ContactCreatedConferenceDetail &detail);

} // namespace AnswerAnalyser
