// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

class IBusinessIntent;

/// Creates handlers by the intent's name.
class IIntentFactory
{
public:
    virtual ~IIntentFactory() = default;
    /// Returns a new handler, owned by the caller; null for an unknown name.
    virtual IBusinessIntent *createIntent(const QString &name) = 0;
};
