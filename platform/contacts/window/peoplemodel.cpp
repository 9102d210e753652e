// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peoplemodel.h"

#include "book/contactsbook.h"
#include "core/displaytext.h"

#include <lumo/plaintooltip.h>

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr int PageSize = 100;

QString headerText(int column)
{
    static const std::array<QString, PeopleModel::ColumnCount> headers{
        QStringLiteral("姓名"), QStringLiteral("账号"), QStringLiteral("关系"), QStringLiteral("账号类型")};
    return headers.at(static_cast<size_t>(column));
}

QString relationText(Friendship friendship)
{
    switch (friendship) {
    case Friendship::Friend:
        return QStringLiteral("好友");
    case Friendship::Requested:
        return QStringLiteral("已发送好友申请");
    case Friendship::None:
        break;
    }
    return QStringLiteral("同事");
}

QString nameText(const Person &person)
{
    const QString shown = cleanDisplayText(person.shownName());
    const QString name = cleanDisplayText(person.name);
    return shown == name ? name : QStringLiteral("%1（%2）").arg(shown, name);
}

QString display(const Person &person, int column)
{
    switch (column) {
    case PeopleModel::Name:
        return nameText(person);
    case PeopleModel::Account:
        return person.account;
    case PeopleModel::Relation:
        return relationText(person.friendship);
    case PeopleModel::Kind:
        return person.kind == AccountKind::Paying ? QStringLiteral("付费") : QStringLiteral("免费");
    default:
        return {};
    }
}

bool matches(const Person &person, const QString &filter)
{
    return filter.isEmpty() || QString(nameText(person) + QLatin1Char(' ') + person.account +
                                       QLatin1Char(' ') + relationText(person.friendship))
                                   .contains(filter, Qt::CaseInsensitive);
}

bool isSame(const Person &left, const Person &right)
{
    return left.userId == right.userId;
}

} // namespace

PeopleModel::PeopleModel(ContactsBook &book, QObject *parent) : QAbstractTableModel(parent), m_book(book)
{
    connect(&m_book, &ContactsBook::changedLately, this, &PeopleModel::reload);
    reload();
}

void PeopleModel::reload()
{
    const QVector<Person> former = m_people;
    // As many as there were, so that whoever has scrolled stays there.
    m_people.clear();
    read(qMax(PageSize, former.size()));
    QVector<Person> people;
    people.swap(m_people);
    if (std::equal(people.cbegin(), people.cend(), former.cbegin(), former.cend(), isSame)) {
        m_people = std::move(people);
        if (!m_people.isEmpty()) {
            Q_EMIT dataChanged(index(0, 0), index(m_people.size() - 1, ColumnCount - 1));
        }
        return;
    }
    m_people = former;
    beginResetModel();
    m_people = std::move(people);
    endResetModel();
}

void PeopleModel::setFilter(const QString &text)
{
    m_filter = text;
    beginResetModel();
    read(PageSize);
    endResetModel();
}

void PeopleModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    beginResetModel();
    read(PageSize);
    endResetModel();
}

void PeopleModel::read(int count)
{
    m_people.clear();
    m_readUntil.clear();
    m_hasMore = false;
    try {
        const std::optional<Person> user = m_book.session().user();
        m_ownerId = user ? user->userId : QString();
        m_hasMore = user.has_value();
        m_people = nextRows(isInAccountOrder() ? count : std::numeric_limits<int>::max());
    } catch (const std::exception &error) {
        qWarning("The people cannot be shown: %s", error.what());
        m_book.noteFailure(error);
        m_hasMore = false;
    }
    if (isInAccountOrder()) {
        return;
    }
    std::stable_sort(m_people.begin(), m_people.end(), [this](const Person &left, const Person &right) {
        const int order =
            QString::localeAwareCompare(display(left, m_sortColumn), display(right, m_sortColumn));
        return m_sortOrder == Qt::AscendingOrder ? order < 0 : order > 0;
    });
}

QVector<Person> PeopleModel::nextRows(int count)
{
    QVector<Person> rows;
    while (m_hasMore && rows.size() < count) {
        const int chunk = qBound(PageSize, count - rows.size(), 10 * PageSize);
        const QVector<Person> people = m_book.people().contactsAfter(m_ownerId, m_readUntil, chunk);
        m_hasMore = people.size() == chunk;
        for (const Person &person : people) {
            m_readUntil = person.account;
            if (matches(person, m_filter)) {
                rows.append(person);
            }
        }
    }
    return rows;
}

bool PeopleModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && m_hasMore;
}

void PeopleModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent)) {
        return;
    }
    try {
        const QVector<Person> rows = nextRows(PageSize);
        if (!rows.isEmpty()) {
            beginInsertRows({}, m_people.size(), m_people.size() + rows.size() - 1);
            m_people += rows;
            endInsertRows();
        }
    } catch (const std::exception &error) {
        qWarning("The people cannot be shown: %s", error.what());
        m_book.noteFailure(error);
        m_hasMore = false;
    }
}

int PeopleModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_people.size();
}

int PeopleModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PeopleModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_people.size()) {
        return {};
    }
    const Person &person = m_people.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return display(person, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(display(person, index.column()));
    case AccountRole:
        return person.account;
    default:
        return {};
    }
}

QVariant PeopleModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount) {
        return {};
    }
    return headerText(section);
}
