// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "book/contactsbook.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/// A folder for the application's data, without a database yet.
struct DataFolder
{
    QTemporaryDir root;
    QString file = root.filePath(QStringLiteral("kelvane-contacts/contacts.db"));

    /// Returns the names of the damaged databases, without their journals.
    QStringList setAside() const;
};

/// Returns a clock that stands at 10:20 on 7 March 2026.
ContactsBook::Clock fixedClock();
/// Returns the snapshot of the database in @p file, creating it if it is missing.
QString worldIn(const QString &file);
/// Adds people with the ids p000000, p000001, ..., the accounts 9000000, ... and the names 第0位, ...
void addPeople(ContactsBook &book, int count);

constexpr qint64 PageBytes = 4096;

/// Overwrites the bytes of @p name from @p from up to @p to with garbage.
void overwrite(const QString &name, qint64 from, qint64 to);
/// Overwrites one page. Page numbers start at 1.
void overwritePage(const QString &name, int page);
/// Overwrites the root page of one table or index; all other tables stay readable.
void overwriteTable(const QString &fileName, const QString &table);
/// Returns the leaf pages of @p table, in key order.
QVector<int> leavesOf(const QString &fileName, const QString &table);
