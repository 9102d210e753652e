// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTest>

#include <cstddef>

/// Adds columns to the test's table, as in addColumns<QString, int>({"text", "code"}).
template <typename... Types>
void addColumns(const char *const (&names)[sizeof...(Types)])
{
    std::size_t column = 0;
    (QTest::addColumn<Types>(names[column++]), ...);
}

/// Adds a row to the table, as in addRow("nothing", "", 0). Pass string literals for QString columns.
template <typename... Values>
void addRow(const char *name, Values... values)
{
    (QTest::newRow(name) << ... << values);
}
