// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/**
 * "Invite Members" {"members"}: into the conference that the user is in. A name that several people have, or
 * more people than seats, invites nobody; otherwise those who were found are invited.
 */
QJsonObject inviteMembers(const ActionContext &context, const RequestParameters &parameters);
