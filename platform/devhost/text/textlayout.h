// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace devhost {

/// Columns that @p text takes in a terminal: Chinese characters take two.
int terminalWidth(const QString &text);

/// @p text in lines of at most @p columns, broken anywhere, since Chinese has no blanks.
QStringList wrapped(const QString &text, int columns);

} // namespace devhost
