// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QApplication>
#include <QPalette>
#include <QTest>

/// The desktop's theme during a test, set through the application's palette, which every toolkit reads.
namespace DesktopTheme {

enum Theme { Light, Dark };

inline void set(Theme theme)
{
    // QPalette derives legible text colours from the button's and the window's colour.
    QApplication::setPalette(theme == Dark ? QPalette(QColor(0x2c, 0x2c, 0x2c), QColor(0x19, 0x19, 0x19))
                                           : QPalette(QColor(0xe6, 0xe6, 0xe6), QColor(0xf8, 0xf8, 0xf8)));
}

/// Adds the column "theme" and a row per theme to the current test's table.
inline void addRows()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(Light);
    QTest::newRow("dark") << int(Dark);
}

} // namespace DesktopTheme
