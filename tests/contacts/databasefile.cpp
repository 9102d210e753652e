// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefile.h"
#include "sampleworld.h"

#include "core/statement.h"

#include <QDir>
#include <QtTest>

#include <algorithm>
#include <functional>

QStringList DataFolder::setAside() const
{
    QStringList names = QFileInfo(file).dir().entryList({QStringLiteral("*damaged*")}, QDir::Files);
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString &name) { return name.count(QLatin1Char('-')) > 1; }),
                names.end());
    return names;
}

ContactsBook::Clock fixedClock()
{
    return [] {
        return at("2026-03-07T10:20");
    };
}

QString worldIn(const QString &file)
{
    ContactsBook book(file, fixedClock());
    return Administration(book).Snapshot();
}

void addPeople(ContactsBook &book, int count)
{
    book.change([&book, count] {
        for (int i = 0; i < count; ++i) {
            Person person;
            person.userId = QStringLiteral("p%1").arg(i, 6, 10, QLatin1Char('0'));
            person.account = QStringLiteral("9%1").arg(i, 6, 10, QLatin1Char('0'));
            person.name = QStringLiteral("第%1位").arg(i);
            book.people().addPerson(person);
        }
        return true;
    });
}

void overwrite(const QString &name, qint64 from, qint64 to)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(from));
    file.write(QByteArray(static_cast<int>(to - from), 'x'));
}

void overwritePage(const QString &name, int page)
{
    overwrite(name, (page - 1) * PageBytes, page * PageBytes);
}

void overwriteTable(const QString &fileName, const QString &table)
{
    int page = 0;
    {
        const Database database(fileName);
        Statement root(database.handle(),
                       QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = ?"));
        QVERIFY(root.bind(table).run().next());
        page = root.smallNumber(0);
        Statement size(database.handle(), QStringLiteral("PRAGMA page_size"));
        QVERIFY(size.run().next());
        QCOMPARE(size.number(0), PageBytes);
    }
    overwritePage(fileName, page);
}

QVector<int> leavesOf(const QString &fileName, const QString &table)
{
    int root = 0;
    {
        const Database database(fileName);
        Statement query(database.handle(),
                        QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = ?"));
        root = query.bind(table).run().next() ? query.smallNumber(0) : 0;
    }
    QFile file(fileName);
    QVector<int> leaves;
    if (!file.open(QIODevice::ReadOnly)) {
        return leaves;
    }
    const QByteArray bytes = file.readAll();
    const auto number = [&bytes](int at, int size) {
        int value = 0;
        for (int i = 0; i < size; ++i) {
            value = value * 256 + static_cast<uchar>(bytes.at(at + i));
        }
        return value;
    };
    // Each cell of an interior page begins with a child's page number; the header holds the last child's.
    const std::function<void(int)> collect = [&](int page) {
        const int start = (page - 1) * int(PageBytes);
        const int kind = number(start, 1);
        if (kind != 2 && kind != 5) {
            leaves.append(page);
            return;
        }
        for (int cell = 0; cell < number(start + 3, 2); ++cell) {
            collect(number(start + number(start + 12 + 2 * cell, 2), 4));
        }
        collect(number(start + 8, 4));
    };
    collect(root);
    return leaves;
}
