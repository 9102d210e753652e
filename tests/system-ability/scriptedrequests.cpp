// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scriptedrequests.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QTimer>

#include <unistd.h>

QString ScriptedRequests::Request(const QString &action, const QString &parameters, qlonglong deadlineMsecs,
                                  const QString &requestId)
{
    if (action == QLatin1String("Echo")) {
        return parameters;
    }
    if (action == QLatin1String("Deadline")) {
        return QString::number(deadlineMsecs);
    }
    if (action == QLatin1String("Refuse")) {
        m_refusal = parameters;
        return {};
    }
    if (action == QLatin1String("Asked")) {
        return QString::number(m_timesAsked);
    }
    if (action == QLatin1String("Die")) {
        _exit(0);
    }
    if (action == QLatin1String("Fail")) {
        sendErrorReply(QStringLiteral("org.example.Error.NotToday"), QStringLiteral("not today"));
        return {};
    }
    setDelayedReply(true);
    const QDBusMessage request = message();
    const QDBusConnection bus = connection();
    if (action == QLatin1String("Malform")) {
        // One argument per letter of the signature.
        QVariantList arguments;
        for (const QChar type : parameters) {
            arguments.append(type == QLatin1Char('s') ? QVariant(QStringLiteral("text")) : QVariant(42));
        }
        bus.send(request.createReply(arguments));
    } else if (action == QLatin1String("Late")) {
        m_performed.insert(requestId);
        QTimer::singleShot(parameters.toInt(), Qt::PreciseTimer, this,
                           [request, bus] { bus.send(request.createReply(QStringLiteral("late"))); });
    }
    return {};
}

bool ScriptedRequests::WasPerformed(const QString &requestId)
{
    ++m_timesAsked;
    if (!m_refusal.isEmpty()) {
        sendErrorReply(m_refusal, QStringLiteral("not today"));
    }
    return m_performed.contains(requestId);
}
