// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtCore/QJsonObject>

struct ActionContext;
class RequestParameters;

/**
 * "Add Friends" {"userId"}: sends a friend request. What was said is an account, else an id, else the name of
 * exactly one person. Whoever was asked before counts as added.
 */
QJsonObject addFriends(const ActionContext &context, const RequestParameters &parameters);
