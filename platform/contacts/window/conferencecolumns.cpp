// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferencecolumns.h"

#include "window/columnwidths.h"
#include "window/conferencemodel.h"

#include <QTableView>

void arrangeConferenceColumns(QTableView *table)
{
    constexpr int narrow = 64;
    constexpr int wide = 190;
    QVector<ColumnWidths::Limits> limits(ConferenceModel::ColumnCount, {narrow, wide});
    limits[ConferenceModel::Title] = {180, 180};
    limits[ConferenceModel::Start] = {narrow, 2 * wide}; // a date is never shortened, however large its text
    limits[ConferenceModel::Host] = {narrow, 140};
    new ColumnWidths(table, limits, ConferenceModel::Title);
}
