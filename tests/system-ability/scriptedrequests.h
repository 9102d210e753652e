// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDBusContext>
#include <QObject>
#include <QSet>
#include <QStringList>

/// An application for the ability library's tests. A request's action decides what happens: "Echo" answers
/// with the parameters, "Deadline" with the request's deadline; "Late" is performed at once and answers after
/// as many milliseconds as the parameters say; "Never" does not answer, "Fail" answers with an error,
/// "Malform" with arguments of the types in the parameters; "Die" ends the process at once. After "Refuse"
/// WasPerformed() answers with the error named in the parameters; "Asked" answers how often it was called.
class ScriptedRequests : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    using QObject::QObject;

public Q_SLOTS:
    QString Request(const QString &action, const QString &parameters, qlonglong deadlineMsecs,
                    const QString &requestId);
    bool WasPerformed(const QString &requestId);
    QStringList ContactNames() { return {}; }
    QString Overview() { return {}; }

Q_SIGNALS:
    void ContactNamesChanged();

private:
    QSet<QString> m_performed;
    QString m_refusal; ///< the error that WasPerformed() answers with; empty for none
    int m_timesAsked = 0;
};
