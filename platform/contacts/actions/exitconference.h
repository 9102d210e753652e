// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/// "Exit Conference": leaves the conference that the user is in; it ends when the user is its host.
QJsonObject exitConference(const ActionContext &context, const RequestParameters &parameters);
