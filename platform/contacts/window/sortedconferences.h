// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSortFilterProxyModel>

class ConferenceModel;

/// The conferences of a model as a table shows them: sorted by what a column stands for, and filtered by all
/// their texts, whatever the case of the letters.
class SortedConferences final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// @p model must outlive it, or be deleted by the same parent.
    explicit SortedConferences(ConferenceModel *model, QObject *parent = nullptr);
};
