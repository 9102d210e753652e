// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"

#include <optional>

struct ActionContext;

/// The user's conferences, other than @p except, that overlap the time from @p startMsecs up to @p endMsecs
/// and that the user has not left.
QVector<Conference> overlappingConferences(const ActionContext &context, qint64 startMsecs, qint64 endMsecs,
                                           qint64 except = 0);
/// The user's running conferences, including those that the user has left.
QVector<Conference> runningConferences(const ActionContext &context);
/// The user's current conference.
std::optional<Conference> currentConference(const ActionContext &context);
/// Whether the user is in a conference, on this or another device.
bool isInAnyConference(const ActionContext &context);
/// The conference that a request wants to change, given by "conferenceId"; nothing unless the user hosts it.
std::optional<Conference> hostedConference(const ActionContext &context, const QString &confId);
/// Lets the user into a running conference: "OK", or "Participant Out Limit" when the user has no seat and
/// all are taken.
QLatin1String takeSeat(const ActionContext &context, const Conference &conference);
