// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>
#include <QVector>

/**
 * The steps that bring a database up to date; the n-th leads from version n to n + 1, and the database's
 * "user_version" is the number of steps it has seen. A step that has been released is never changed, a change
 * is a new step at the end.
 */
const QVector<QStringList> &databaseMigrations();
