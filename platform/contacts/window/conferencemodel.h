// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/conference.h"
#include "window/recordmodel.h"

#include <QTimer>

class ContactsBook;

Q_DECLARE_METATYPE(Conference)

/**
 * Conferences as a table: either those that run or come, by their starts, or those that have ended within
 * thirty days, the latest first. Follows the database, and the clock: a row changes at the moment its
 * conference starts, and goes when it ends. Shows no passcode. On the GUI thread.
 */
class ConferenceModel : public RecordModel<Conference, &Conference::id>
{
    Q_OBJECT

public:
    enum Column { State, Title, Number, Start, Duration, People, Host, Passcode, ColumnCount };
    enum Role {
        NumberRole = Qt::UserRole, ///< the dial number, also where another column is asked
        ConferenceIdRole,
        ConferenceRole, ///< the Conference
        StateRole,      ///< a ConferenceState as int
        SortRole,       ///< what a column is sorted by
        SearchRole,     ///< what a filter looks into
    };
    enum class Span { Coming, Ended };
    enum class Scope { Mine, Everybody };
    /// In the order of their starts they are read page by page, as far as somebody scrolls. Whoever filters
    /// or sorts otherwise wants the first thousand.
    enum class Reading { Pages, Whole };

    /// @p book must outlive it.
    explicit ConferenceModel(ContactsBook &book, Span span = Span::Coming, QObject *parent = nullptr);

    void setScope(Scope scope);
    /// Without it there are no rows, and nothing is read for them.
    void setActive(bool active);
    /// How many have ended, without reading them: at most CountLimit + 1.
    int endedCount() const;
    static constexpr int CountLimit = 999;
    void setReading(Reading reading);
    void reload();

    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

Q_SIGNALS:
    /// A row went because its conference has ended.
    void someEnded();

private:
    QVariant header(int column) const override;
    QVariant value(const Conference &conference, int column, int role) const override;
    QVector<Conference> load(int limit) const;
    int rowLimit() const;
    void followClock();
    void waitForNextChange();
    QString display(const Conference &conference, int column) const;
    QVariant sortKey(const Conference &conference, int column) const;
    QString userId() const;
    bool isToday(const Conference &conference) const;

    ContactsBook &m_book;
    const Span m_span;
    bool m_isActive = true;
    Scope m_scope = Scope::Mine;
    Reading m_reading = Reading::Pages;
    int m_pages = 1;
    QTimer m_clock;
};
