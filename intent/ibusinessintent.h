// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

class CloudIntent;

/// Carries out one spoken intent. Created per request and owned by the service.
class IBusinessIntent
{
public:
    virtual ~IBusinessIntent() = default;
    /// Performs the intent on the host's worker thread. Returns a result code, 0 for success.
    virtual int action(const CloudIntent &intent) = 0;
};
