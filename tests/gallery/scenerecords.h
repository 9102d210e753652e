// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

/// The records shown by the cards of the scenes.
namespace SceneRecords {

/// Returns a conference; @p status is 0 (not started), 1 (in progress) or 2 (ended).
ContactDetailMsg conference(int status = 0);
/// Returns a free account's conference whose duration and start are not among the card's choices.
ContactDetailMsg unusualConference();
/// Returns one whose title and names are wider than any card; the title contains markup.
ContactDetailMsg longConference();
ContactDetailMsg crowdedConference(int participants);
QVector<ContactDetailMsg> conferences(int count);

/// Returns two ambiguous names and one person who was found at once.
ContactInviteMemberDetail duplicates();
ContactInviteMemberDetail longDuplicates();
/// Returns more people than the @p canInvite who may still be invited.
ContactInviteMemberDetail exceededLimit(int canInvite);

} // namespace SceneRecords
