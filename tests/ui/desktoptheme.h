// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QApplication>
#include <QPalette>
#include <QTest>

/// The theme of the desktop that a test runs on, set the way every toolkit sees it: by the application's
/// palette.
namespace DesktopTheme {

enum Theme { Light, Dark };

inline void set(Theme theme)
{
    // A palette made from a button's and a window's colour has texts that can be read on them.
    QApplication::setPalette(theme == Dark ? QPalette(QColor(0x2c, 0x2c, 0x2c), QColor(0x19, 0x19, 0x19))
                                           : QPalette(QColor(0xe6, 0xe6, 0xe6), QColor(0xf8, 0xf8, 0xf8)));
}

/// Gives the current test's table the column "theme" and a row for each theme.
inline void addRows()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(Light);
    QTest::newRow("dark") << int(Dark);
}

} // namespace DesktopTheme
