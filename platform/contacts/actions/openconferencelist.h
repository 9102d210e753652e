// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/// "Open Conference List": brings the window up, where there is a screen for it. Needs nobody logged in: one
/// logs in there.
QJsonObject openConferenceList(const ActionContext &context, const RequestParameters &parameters);
