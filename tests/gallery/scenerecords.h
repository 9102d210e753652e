// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

/// What the cards of the scenes show.
namespace SceneRecords {

/// @p status 0 not started, 1 in progress, 2 ended.
ContactDetailMsg conference(int status = 0);
/// A conference of somebody who does not pay, with a duration and a start that the card does not offer.
ContactDetailMsg unusualConference();
/// With a title and names that are longer than any card is wide, and with markup in them.
ContactDetailMsg longConference();
ContactDetailMsg crowdedConference(int participants);
QVector<ContactDetailMsg> conferences(int count);

/// Two names that several people have each, and two people who were found at once.
ContactInviteMemberDetail duplicates();
ContactInviteMemberDetail longDuplicates();
/// More people than may still be invited.
ContactInviteMemberDetail exceededLimit(int canInvite);

} // namespace SceneRecords
