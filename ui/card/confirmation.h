// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QStringList>

/// The purpose for which the people picked on a selection card are confirmed, and everything that depends on
/// it. One row per purpose.
struct Confirmation
{
    enum class ResolvedUsers { Join, StayOut }; ///< whose names matched unambiguously
    enum class Names { AllSaid, EachSaidOnce };
    enum class CardAfterwards { Enabled, Disabled };

    ResolvedUsers resolvedUsers;
    Names names;
    CardAfterwards cardAfterwards;
    /// Blocks until the application has answered, and returns its code. @p startTime is in milliseconds since
    /// the epoch, 0 for now.
    int (*send)(const QVector<UserInfo> &members, qint64 startTime);
    /// What the card says after a success.
    QString (*success)(const QStringList &names);
    QString (*failure)();

    /// The card's text for @p code, with the names of @p members as this purpose mentions them.
    [[nodiscard]] QString reply(const QVector<UserInfo> &members, int code) const;

    static const Confirmation &create();
    static const Confirmation &invite();
    /// After an invitation that was too large.
    static const Confirmation &inviteWithinLimit();
};
