// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "buscontactability.h"

#include "abilitytrace.h"
#include "buslink.h"
#include "pendingrequest.h"

#include <kelvane/abilitycodes.h>

#include <QDebug>
#include <QLoggingCategory>

namespace {

bool isWarningLogged()
{
    const QLoggingCategory *category = QLoggingCategory::defaultCategory();
    // Qt destroys it while the program exits; qWarning() then writes everything.
    return category == nullptr || category->isWarningEnabled();
}

} // namespace

void BusContactAbility::setTimeout(const int &msecs)
{
    m_timeoutMsecs = msecs > 0 ? msecs : DefaultTimeoutMsecs;
}

int BusContactAbility::request(const QString &action, const QString &parameters, QString &answer)
{
    const AbilityTrace trace(action, parameters);
    const auto pending = std::make_shared<PendingRequest>(action, parameters, m_timeoutMsecs);
    BusLink::instance().send(pending);
    const PendingRequest::Result result = pending->wait();
    if (pending->isUnclear(result.code) && !result.isRefusal) {
        BusLink::instance().askLater(pending);
    }
    if (result.code == AbilityCode::Success) {
        answer = result.answer;
    } else if (isWarningLogged()) {
        qWarning().noquote() << "The request" << action << "failed with" << result.code << result.errorName
                             << result.errorMessage;
    }
    trace.finish(result.code, result.answer);
    return result.code;
}
