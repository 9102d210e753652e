// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/accountmodel.h"

#include "book/contactsbook.h"
#include "core/displaytext.h"
#include "window/pagesize.h"

namespace {

QString textOf(const Person &person)
{
    return QStringLiteral("%1 %2").arg(cleanDisplayText(person.name), person.account);
}

} // namespace

AccountModel::AccountModel(ContactsBook &book, QObject *parent) : QAbstractListModel(parent), m_book(book) {}

void AccountModel::reload()
{
    const std::optional<Person> user = m_book.session().user();
    beginResetModel();
    m_user = user;
    m_others.clear();
    m_readUntil.clear();
    m_hasMore = true;
    try {
        m_others = nextPage();
    } catch (...) {
        m_hasMore = false;
        endResetModel();
        throw;
    }
    endResetModel();
}

QVector<Person> AccountModel::nextPage()
{
    const QVector<Person> people = m_book.people().everybodyAfter(m_readUntil, PageSize);
    m_hasMore = people.size() == PageSize;
    QVector<Person> others;
    for (const Person &person : people) {
        m_readUntil = person.account;
        if (!m_user || person.userId != m_user->userId) {
            others.append(person);
        }
    }
    return others;
}

bool AccountModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && m_hasMore;
}

void AccountModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent)) {
        return;
    }
    try {
        const QVector<Person> people = nextPage();
        if (!people.isEmpty()) {
            beginInsertRows({}, rowCount(), rowCount() + people.size() - 1);
            m_others += people;
            endInsertRows();
        }
    } catch (const std::exception &error) {
        qWarning("The accounts cannot be shown: %s", error.what());
        m_book.noteFailure(error);
        m_hasMore = false;
    }
}

int AccountModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : currentRow() + 1 + m_others.size();
}

QVariant AccountModel::data(const QModelIndex &index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    if (!index.isValid() || index.row() >= rowCount() || (!isText && role != Qt::UserRole)) {
        return {};
    }
    if (index.row() == 0) {
        return isText ? tr("Not logged in") : QString();
    }
    const Person &person =
        index.row() <= currentRow() ? *m_user : m_others.at(index.row() - currentRow() - 1);
    return isText ? textOf(person) : person.account;
}
