// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTest>

/// Adds a row with @p value for each key that activates the focused control.
inline void addConfirmKeys(bool value)
{
    QTest::newRow("Return") << int(Qt::Key_Return) << value;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << value;
    QTest::newRow("Space") << int(Qt::Key_Space) << value;
}
