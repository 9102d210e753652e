// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/// "Join My Conference": the user's one conference that runs now; several come back as a list with "Time
/// Overlap".
QJsonObject joinMyConference(const ActionContext &context, const RequestParameters &parameters);
