// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/sortedconferences.h"

#include "window/conferencemodel.h"

SortedConferences::SortedConferences(ConferenceModel *model, QObject *parent) : QSortFilterProxyModel(parent)
{
    setSourceModel(model);
    setSortRole(ConferenceModel::SortRole);
    setSortLocaleAware(true);
    setFilterRole(ConferenceModel::SearchRole);
    setFilterKeyColumn(0);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
}
