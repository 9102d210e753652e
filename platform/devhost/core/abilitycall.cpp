// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "abilitycall.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace devhost {

QString AbilityCall::category()
{
    return QStringLiteral("kelvane.ability");
}

bool AbilityCall::read(const LogRecord &record, AbilityCall &call)
{
    if (QString::fromUtf8(record.category) != category()) {
        return false;
    }
    const QJsonObject trace = QJsonDocument::fromJson(record.text.toUtf8()).object();
    if (!trace.contains(QLatin1String("action"))) {
        return false;
    }
    call.action = trace.value(QLatin1String("action")).toString();
    call.parameters = trace.value(QLatin1String("parameters")).toString();
    call.answer = trace.value(QLatin1String("answer")).toString();
    call.code = trace.value(QLatin1String("code")).toInt();
    call.msecs = trace.value(QLatin1String("ms")).toDouble();
    call.isPerformedAfterAll = trace.value(QLatin1String("performedAfterAll")).toBool();
    return true;
}

} // namespace devhost
