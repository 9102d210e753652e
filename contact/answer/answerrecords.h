// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

QT_BEGIN_NAMESPACE
class QJsonArray;
QT_END_NAMESPACE

/// Reads the conferences and people of an answer (see answerwords.h) into records. What is missing or of
/// another type stays empty.
namespace AnswerRecords {

QVector<ContactDetailMsg> conferences(const QJsonArray &list);

/// Sorts the people that were asked for into found, ambiguous and not found; leaves canInviteNum at 0.
ContactInviteMemberDetail members(const QJsonArray &users);

} // namespace AnswerRecords
