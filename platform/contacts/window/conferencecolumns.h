// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QTableView;
QT_END_NAMESPACE

/// Lets a table of conferences look like the other one. It must have its model.
void arrangeConferenceColumns(QTableView *table);
