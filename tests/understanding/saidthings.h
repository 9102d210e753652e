// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

// What a sentence says, read for tests without the rules: only what stands there, whatever it means.

/// Returns every string of digits in @p sentence, written or read aloud, in its order: 幺二三 is 123.
QStringList digitsSaid(const QString &sentence);

/// Returns the string of digits right behind @p label; empty if none is there.
QString digitsSaidBehind(const QString &sentence, const QString &label);

/// Returns why @p normValue, a time's slot, does not follow from the day, the part of the day and the hour in
/// @p sentence, said at @p now; empty if it does.
QString timeNotSaid(const QString &sentence, const QString &normValue, const QDateTime &now);
