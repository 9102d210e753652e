// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <kelvane/contactability.h>

/// Carries requests to the application over the session bus. Blocks the thread that asks, never longer than
/// the time-out, and runs no event loop there.
class BusContactAbility final : public ContactAbility
{
public:
    /// A time-out that is not above 0 stands for the default.
    void setTimeout(const int &msecs) override;
    int request(const QString &action, const QString &parameters, QString &answer) override;

private:
    static constexpr int DefaultTimeoutMsecs = 5000;

    int m_timeoutMsecs = DefaultTimeoutMsecs;
};
