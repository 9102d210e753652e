// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

/**
 * What the buttons of a card ask of the contacts application. Each call blocks until the answer is there and
 * gives its result code, 0 for success; a call that failed with an exception counts as a failed call, because
 * none may leave a slot.
 *
 * Whoever calls must expect that the card is gone afterwards.
 */
namespace CardGateway {

int update(const ContactDetailMsg &conference) noexcept;
int cancel(const QString &conferenceId) noexcept;
/// @p startTime in milliseconds since the epoch, 0 for now.
int create(const QVector<UserInfo> &members, qint64 startTime) noexcept;
int invite(const QVector<UserInfo> &members) noexcept;
int openConferenceList() noexcept;

} // namespace CardGateway
