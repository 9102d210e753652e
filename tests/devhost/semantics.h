// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// Returns semantic JSON for the test plugin: one intent with at most one slot.
inline QString semantic(const char *intent, const QString &value = QString())
{
    const QString slot =
        value.isEmpty() ? QString() : QStringLiteral("{\"name\":\"text\",\"value\":\"%1\"}").arg(value);
    return QStringLiteral("{\"intent\":{\"semantic\":[{\"intent\":\"%1\",\"slots\":[%2]}]}}")
        .arg(QLatin1String(intent), slot);
}
