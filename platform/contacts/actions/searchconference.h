// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/// "Search Conference" {"startTime", "endTime"}: the user's conferences that overlap that time. A missing
/// start is now, a missing end is never; without parameters that is everything from now on.
QJsonObject searchConference(const ActionContext &context, const RequestParameters &parameters);
