// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/**
 * "Update Conference" {"conferenceId", "startTime", "duration", "participantLimit"}: of one that the user
 * hosts; what is missing stays. All or nothing: "Update Failed" when the account may not have it so, or it
 * would overlap or have ended.
 */
QJsonObject updateConference(const ActionContext &context, const RequestParameters &parameters);
