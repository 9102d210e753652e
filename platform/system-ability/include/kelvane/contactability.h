// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QtGlobal>

#if defined(KELVANE_ABILITY_LIBRARY)
#define KELVANE_ABILITY_EXPORT Q_DECL_EXPORT
#else
#define KELVANE_ABILITY_EXPORT Q_DECL_IMPORT
#endif

/**
 * The contacts and meetings application, for one request. Created by KelvaneAbilityManager::createContact(),
 * owned by the caller, used for one request and deleted. Any thread.
 */
class KELVANE_ABILITY_EXPORT ContactAbility
{
public:
    virtual ~ContactAbility();
    /// Sets the time-out of the next request, in milliseconds.
    virtual void setTimeout(const int &msecs) = 0;
    /**
     * Performs @p action with the JSON text @p parameters and blocks until its end.
     * @return 0 with the JSON answer in @p answer; -16020 after the time-out; -9999 to -1 when the call
     * itself failed. @p answer is written on success only.
     */
    virtual int request(const QString &action, const QString &parameters, QString &answer) = 0;
};
