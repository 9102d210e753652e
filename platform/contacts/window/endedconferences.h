// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/conferencemodel.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

class HintedTable;
class SortedConferences;

/// The conferences that have ended, folded away below a line that says how many there are.
class EndedConferences : public QWidget
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    explicit EndedConferences(ContactsBook &book, QWidget *parent = nullptr);

    void setScope(ConferenceModel::Scope scope);
    /// Shows those whose texts contain @p text.
    void setFilter(const QString &text);
    /// Looks at the clock anew. What changes in the database it follows by itself.
    void reload();

    QToolButton *disclosure() const { return m_disclosure; }
    HintedTable *table() const { return m_table; }

Q_SIGNALS:
    void unfolded(bool open);

private:
    void count();
    void readWhatIsNeeded();
    void addTable();

    ConferenceModel *m_model; ///< children, all of them
    SortedConferences *m_sorted;
    QToolButton *m_disclosure;
    HintedTable *m_table;
    QString m_filter;
};
