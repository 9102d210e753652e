// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "abilitytrace.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(ability, "kelvane.ability", QtInfoMsg)

} // namespace

AbilityTrace::AbilityTrace(const QString &action, const QString &parameters)
    : m_action(action)
    , m_parameters(parameters)
{
}

void AbilityTrace::finish(int code, const QString &answer) const
{
    if (!ability().isDebugEnabled()) {
        return;
    }
    const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - m_start;
    const QJsonObject record{{QStringLiteral("action"), m_action},
                             {QStringLiteral("parameters"), withoutPassword(m_parameters)},
                             {QStringLiteral("code"), code},
                             {QStringLiteral("answer"), answer},
                             {QStringLiteral("ms"), passed.count()}};
    qCDebug(ability, "%s", QJsonDocument(record).toJson(QJsonDocument::Compact).constData());
}

void AbilityTrace::tellPerformedAfterAll(const QString &action)
{
    if (!ability().isWarningEnabled()) {
        return;
    }
    const QJsonObject record{{QStringLiteral("action"), action}, {QStringLiteral("performedAfterAll"), true}};
    qCWarning(ability, "%s", QJsonDocument(record).toJson(QJsonDocument::Compact).constData());
}

QString AbilityTrace::withoutPassword(const QString &parameters)
{
    const QLatin1String key("password");
    QJsonObject object = QJsonDocument::fromJson(parameters.toUtf8()).object();
    if (object.value(key).toString().isEmpty()) {
        return parameters;
    }
    object.insert(key, QStringLiteral("••••"));
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}
