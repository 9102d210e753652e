// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace understanding {

/// Returns the semantic JSON for one standalone sentence, with times resolved against @p now (local time) and
/// @p contactNames recognised as wholes. Always one JSON object on one line. Thread-safe.
QString understand(const QString &sentence, const QDateTime &now, const QStringList &contactNames = {});

} // namespace understanding
