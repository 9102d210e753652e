// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/**
 * "Join Conference" {"conferenceId", "password"}: the conference with that number, as it is said. Host and
 * invited people need no passcode, and invited people have their seat. Being in it already is as good as
 * joining it.
 */
QJsonObject joinConference(const ActionContext &context, const RequestParameters &parameters);
