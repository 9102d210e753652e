// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

class CloudIntent;

/// Carries out one spoken intent. Made new for each request; the service owns it.
class IBusinessIntent
{
public:
    virtual ~IBusinessIntent() = default;
    /// Performs the intent, on the host's worker thread. A result code: 0 is success.
    virtual int action(const CloudIntent &intent) = 0;
};
