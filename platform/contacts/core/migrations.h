// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>
#include <QVector>

/**
 * The steps that bring a database up to date: step n leads from version n to n + 1, and the database's
 * "user_version" counts the steps applied. Never change a released step; add a new one at the end.
 */
const QVector<QStringList> &databaseMigrations();
