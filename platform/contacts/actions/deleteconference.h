// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/// "Delete Conference" {"conferenceId"}: one that the user hosts and that has not ended.
QJsonObject deleteConference(const ActionContext &context, const RequestParameters &parameters);
