// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusContext>
#include <QObject>

/// An application that does with a request what the request's action says, for the ability library's tests:
/// "Echo" answers with the parameters, "Late" after as many milliseconds as they say, "Never" not at all,
/// "Fail" with an error, "Malform" with a number, "Die" ends the process at once.
class ScriptedRequests : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    using QObject::QObject;

public Q_SLOTS:
    QString Request(const QString &action, const QString &parameters);
};
