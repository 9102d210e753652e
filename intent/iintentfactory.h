// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

class IBusinessIntent;

/// Makes the handler for an intent's name.
class IIntentFactory
{
public:
    virtual ~IIntentFactory() = default;
    /// A new handler, owned by the caller; null for a name it does not know.
    virtual IBusinessIntent *createIntent(const QString &name) = 0;
};
