// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"

#include <optional>

struct ActionContext;

/// The user's conferences, other than @p except, that take some of the time from @p startMsecs up to @p
/// endMsecs and that the user has not left.
QVector<Conference> overlappingConferences(const ActionContext &context, qint64 startMsecs, qint64 endMsecs,
                                           qint64 except = 0);
/// The user's conferences that run now, also those that the user has left.
QVector<Conference> runningConferences(const ActionContext &context);
/// The conference that the user is in at the moment.
std::optional<Conference> currentConference(const ActionContext &context);
/// Whether the user is in one, here or on another device.
bool isInAnyConference(const ActionContext &context);
/// The conference that a request wants to change, by "conferenceId"; nothing unless the user is its host.
std::optional<Conference> hostedConference(const ActionContext &context, const QString &confId);
/// Lets the user into a running conference: "OK", or "Participant Out Limit" for somebody without a seat when
/// all are taken.
QLatin1String takeSeat(const ActionContext &context, const Conference &conference);
