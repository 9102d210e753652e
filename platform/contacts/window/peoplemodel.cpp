// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peoplemodel.h"

#include "book/contactsbook.h"
#include "window/pagesize.h"

#include <lumo/plaintooltip.h>

#include <array>
#include <limits>

namespace {

QString headerText(int column)
{
    static constexpr std::array<const char *, PeopleModel::ColumnCount> headers{
        QT_TRANSLATE_NOOP("PeopleModel", "Name"), QT_TRANSLATE_NOOP("PeopleModel", "Account"),
        QT_TRANSLATE_NOOP("PeopleModel", "Relation"), QT_TRANSLATE_NOOP("PeopleModel", "Kind of Account")};
    return PeopleModel::tr(headers.at(static_cast<size_t>(column)));
}

} // namespace

PeopleModel::PeopleModel(ContactsBook &book, QObject *parent)
    : RecordModel(ColumnCount, parent)
    , m_book(book)
    , m_reader(book)
{
    connect(&m_slices, &QTimer::timeout, this, &PeopleModel::readOn);
    connect(&m_book, &ContactsBook::changedLately, this, &PeopleModel::reload);
    startAtOnce(Showing::AsTheyCome, PageSize);
}

void PeopleModel::reload()
{
    if (currentOwner() != m_ownerId) {
        startAtOnce(Showing::AsTheyCome, PageSize); // nobody sees another one's people
    } else if (isReading()) {
        m_isStale = true; // a reading that starts anew with each change would never end
    } else {
        // As many as there were, so that whoever has scrolled stays there.
        start(Showing::WhenComplete, qMax(PageSize, records().size()));
        if (isInAccountOrder()) {
            readOn(); // another order takes its time; the former rows stay until then
        }
    }
}

void PeopleModel::setFilter(const QString &text)
{
    m_filter = text;
    startAtOnce(Showing::AsTheyCome, PageSize);
}

void PeopleModel::setScope(PeopleScope scope)
{
    m_scope = scope;
    startAtOnce(Showing::AsTheyCome, PageSize);
}

void PeopleModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    startAtOnce(Showing::WhenComplete, PageSize);
}

QString PeopleModel::currentOwner() const
{
    try {
        const std::optional<Person> user = m_book.session().user();
        return user ? user->userId : QString();
    } catch (const std::exception &error) {
        qWarning("The people cannot be shown: %s", error.what());
        m_book.noteFailure(error);
        return {};
    }
}

void PeopleModel::start(Showing showing, int wanted)
{
    const QString owner = currentOwner();
    if (owner != m_ownerId) {
        replace({});
    }
    m_showing = isInAccountOrder() ? showing : Showing::WhenComplete;
    m_wanted = isInAccountOrder() ? wanted : std::numeric_limits<int>::max();
    m_isStale = false;
    m_fresh.clear();
    m_order.start(static_cast<PersonColumn>(m_sortColumn), m_sortOrder);
    m_reader.start(owner, m_filter, m_scope);
    m_isFirstSlice = true;
    m_ownerId = owner;
    m_slices.start(0);
}

void PeopleModel::startAtOnce(Showing showing, int wanted)
{
    start(showing, wanted);
    readOn();
}

void PeopleModel::readOn()
{
    const bool isFirst = m_isFirstSlice;
    m_isFirstSlice = false;
    const bool isAppending = m_showing == Showing::AsTheyCome && !isFirst;
    const int have = isFirst ? 0 : isAppending ? records().size() : m_fresh.size();
    QVector<Person> people;
    try {
        people = m_reader.read(m_wanted - have);
    } catch (const std::exception &error) {
        qWarning("The people cannot be shown: %s", error.what());
        m_book.noteFailure(error);
        m_reader.stop();
    }
    if (isAppending) {
        append(people);
    } else if (m_showing == Showing::AsTheyCome) {
        replace(people);
    } else if (isInAccountOrder()) {
        m_fresh += people;
    } else {
        m_order.add(people);
    }
    if (!m_reader.hasMore() || have + people.size() >= m_wanted) {
        finish();
    }
}

void PeopleModel::finish()
{
    m_slices.stop();
    if (m_showing == Showing::WhenComplete) {
        replace(isInAccountOrder() ? m_fresh : m_order.people());
        m_fresh.clear();
        m_order.start(static_cast<PersonColumn>(m_sortColumn), m_sortOrder);
    }
    Q_EMIT settled();
    if (m_isStale) {
        reload();
    }
}

bool PeopleModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && !isReading() && m_reader.hasMore();
}

void PeopleModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent)) {
        return;
    }
    m_showing = Showing::AsTheyCome;
    m_wanted = records().size() + PageSize;
    m_slices.start(0);
    readOn();
}

QVariant PeopleModel::value(const Person &person, int column, int role) const
{
    const auto what = static_cast<PersonColumn>(column);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return personText(person, what);
    case Qt::ToolTipRole:
        return plainToolTip(personText(person, what));
    case AccountRole:
        return person.account;
    case FriendshipRole:
        return static_cast<int>(person.friendship);
    default:
        return {};
    }
}

QVariant PeopleModel::header(int column) const
{
    return headerText(column);
}
