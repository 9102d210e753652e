// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lguiapplicationhelper.h>

#include <QTest>

/// Gives the current test's table the column "theme" and a row for each theme.
inline void addThemes()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(LGuiApplicationHelper::LightType);
    QTest::newRow("dark") << int(LGuiApplicationHelper::DarkType);
}
