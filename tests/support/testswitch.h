// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTest>

/// Adds a bool column that is false in the row @p whenFalse and true in the row @p whenTrue.
inline void addSwitch(const char *column, const char *whenFalse, const char *whenTrue)
{
    QTest::addColumn<bool>(column);
    QTest::newRow(whenFalse) << false;
    QTest::newRow(whenTrue) << true;
}
