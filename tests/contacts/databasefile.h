// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "book/contactsbook.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/// The folder of an application's data, with no database in it yet.
struct DataFolder
{
    QTemporaryDir root;
    QString file = root.filePath(QStringLiteral("kelvane-contacts/contacts.db"));

    /// The names of the damaged databases, without the journals beside them.
    QStringList setAside() const;
};

/// Always 7 March 2026, 10:20.
ContactsBook::Clock fixedClock();
/// The snapshot of the database in @p file, which is made when it is missing.
QString worldIn(const QString &file);
/// Adds people with the ids p000000, p000001, ..., the accounts 9000000, ... and the names 第0位, ...
void addPeople(ContactsBook &book, int count);

constexpr qint64 PageBytes = 4096;

/// Overwrites the bytes of @p name from @p from up to @p to with rubbish.
void overwrite(const QString &name, qint64 from, qint64 to);
/// Overwrites one page; the first is number 1.
void overwritePage(const QString &name, int page);
/// Damages the first page of one table or index; all the others can be read.
void overwriteTable(const QString &fileName, const QString &table);
/// The numbers of the pages that hold the rows of @p table, in the order of its key.
QVector<int> leavesOf(const QString &fileName, const QString &table);
