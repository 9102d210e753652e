// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peoplemodel.h"

#include "book/contactsbook.h"
#include "core/displaytext.h"

#include <lumo/plaintooltip.h>

#include <array>

namespace {

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

} // namespace

PeopleModel::PeopleModel(ContactsBook &book, QObject *parent) : QAbstractTableModel(parent), m_book(book)
{
    connect(&m_book, &ContactsBook::changed, this, &PeopleModel::reload);
    reload();
}

void PeopleModel::reload()
{
    beginResetModel();
    m_people.clear();
    try {
        if (const std::optional<Person> user = m_book.session().user()) {
            m_people = m_book.people().contacts(user->userId);
        }
    } catch (const std::exception &error) {
        qWarning("The people cannot be shown: %s", error.what());
    }
    endResetModel();
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
    case SearchRole:
        return QString(nameText(person) + QLatin1Char(' ') + person.account + QLatin1Char(' ') +
                       relationText(person.friendship));
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
