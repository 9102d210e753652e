// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lguiapplicationhelper.h>

#include <QTest>

/// Adds the column "theme" and a row per theme to the current test's table.
inline void addThemes()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(LGuiApplicationHelper::LightType);
    QTest::newRow("dark") << int(LGuiApplicationHelper::DarkType);
}
