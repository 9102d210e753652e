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
 * The contacts and meetings application, as one request sees it. Made by
 * KelvaneAbilityManager::createContact(), owned by the caller, used for one request and deleted. May be used
 * on any thread.
 */
class KELVANE_ABILITY_EXPORT ContactAbility
{
public:
    virtual ~ContactAbility();
    /// Bounds the next request, in milliseconds.
    virtual void setTimeout(const int &msecs) = 0;
    /**
     * Performs @p action with the JSON text @p parameters and waits for its end.
     * @return 0 with the JSON answer in @p answer; -16020 when the time-out passed; -9999 to -1 when the call
     * itself failed. @p answer is only written on success.
     */
    virtual int request(const QString &action, const QString &parameters, QString &answer) = 0;
};
