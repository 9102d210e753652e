// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QAbstractListModel>
#include <QVector>

#include <optional>

class ContactsBook;

/**
 * Who may log in: nobody, whoever is logged in, then everybody else by their accounts, read page by page as
 * far as somebody scrolls. The account is the user's data of a row. On the GUI thread.
 */
class AccountModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    explicit AccountModel(ContactsBook &book, QObject *parent = nullptr);

    /// Throws DatabaseError.
    void reload();
    /// The row of whoever is logged in, or of nobody.
    int currentRow() const { return m_user ? 1 : 0; }
    const std::optional<Person> &user() const { return m_user; }

    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QVector<Person> nextPage();

    ContactsBook &m_book;
    std::optional<Person> m_user;
    QVector<Person> m_others;
    QString m_readUntil; ///< the account of the last person that was looked at
    bool m_hasMore = false;
};
