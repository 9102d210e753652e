// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/// "Is Conference Host": of the conference that the user is in.
QJsonObject isConferenceHost(const ActionContext &context, const RequestParameters &parameters);
