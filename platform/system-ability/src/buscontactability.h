// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <kelvane/contactability.h>

/// Sends requests to the application over the session bus. Blocks the calling thread, never longer than the
/// time-out, without running an event loop there.
class BusContactAbility final : public ContactAbility
{
public:
    /// A time-out of 0 or less stands for the default.
    void setTimeout(const int &msecs) override;
    int request(const QString &action, const QString &parameters, QString &answer) override;

private:
    static constexpr int DefaultTimeoutMsecs = 5000;

    int m_timeoutMsecs = DefaultTimeoutMsecs;
};
