// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationonbus.h"

#include <kelvane/kelvaneabilitymanager.h>

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QJsonDocument>
#include <QtTest>

#include <csignal>
#include <memory>

Asked ask(const QString &action, const QJsonObject &parameters, int timeoutMsecs)
{
    const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
    ability->setTimeout(timeoutMsecs);
    const QString text = QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact));
    Asked asked;
    QString answer;
    asked.code = ability->request(action, text, answer);
    asked.answer = QJsonDocument::fromJson(answer.toUtf8()).object();
    return asked;
}

pid_t servicePid()
{
    const QDBusReply<uint> pid = QDBusConnection::sessionBus().interface()->servicePid(ServiceName);
    return pid.isValid() ? static_cast<pid_t>(pid.value()) : 0;
}

void killApplication()
{
    const pid_t pid = servicePid();
    if (pid != 0) {
        kill(pid, SIGKILL);
    }
    QTRY_VERIFY_WITH_TIMEOUT(servicePid() == 0, PatientMsecs);
}
