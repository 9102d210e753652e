// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>

namespace understanding {

/// The lines of the compiled-in rule file @p name, without comments (#) and empty lines, trimmed.
QStringList ruleLines(const QString &name);

} // namespace understanding
