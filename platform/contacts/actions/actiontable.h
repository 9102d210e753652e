// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QLatin1String>
#include <QString>

struct ActionContext;
class RequestParameters;

using ActionHandler = QJsonObject (*)(const ActionContext &context, const RequestParameters &parameters);

/// Whether an action is refused while nobody is logged in.
enum class ActionAccess { Anybody, LoggedInUser };

/// One action that other programs may request.
struct Action
{
    QLatin1String name;
    ActionHandler handler;
    ActionAccess access;
};

/// The action called @p name; null for an unknown one.
const Action *findAction(const QString &name);
