// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace devhost {

/// Terminal columns taken by @p text: two per Chinese character.
int terminalWidth(const QString &text);

/// Wraps @p text to @p columns, at any character, since Chinese has no spaces.
QStringList wrapped(const QString &text, int columns);

} // namespace devhost
