// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"

#include <QAbstractTableModel>
#include <QTimer>

class ContactsBook;

/**
 * Conferences as a table. Follows the database, and the clock: a row changes at the moment its conference
 * starts or ends. On the GUI thread.
 */
class ConferenceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { State, Title, Number, Start, Duration, People, Host, Passcode, ColumnCount };
    enum Role {
        NumberRole = Qt::UserRole, ///< the dial number, also where another column is asked
        ConferenceIdRole,
        StateRole,  ///< a ConferenceState as int
        SortRole,   ///< what a column is sorted by
        SearchRole, ///< what a filter looks into
    };
    enum class Scope { Mine, Everybody };
    /// In the order of their starts they are read page by page, as far as somebody scrolls. Whoever filters
    /// or sorts otherwise wants the first thousand.
    enum class Reading { Pages, Whole };

    /// @p book must outlive it.
    explicit ConferenceModel(ContactsBook &book, QObject *parent = nullptr);

    void setScope(Scope scope);
    void setReading(Reading reading);
    void reload();

    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVector<Conference> load(int limit) const;
    int rowLimit() const;
    void followClock();
    void waitForNextChange();
    QString display(const Conference &conference, int column) const;
    QVariant sortKey(const Conference &conference, int column) const;

    ContactsBook &m_book;
    Scope m_scope = Scope::Mine;
    Reading m_reading = Reading::Pages;
    int m_pages = 1;
    QVector<Conference> m_conferences;
    QTimer m_clock;
};
