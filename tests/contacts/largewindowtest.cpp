// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "largewindowtest.h"
#include "paintcounter.h"
#include "threadtime.h"

#include "core/statement.h"

#include <QTabWidget>
#include <QtTest>

#include <utility>

void LargeWindowTest::initTestCase()
{
    m_world = std::make_unique<SampleWorld>();
    m_world->admin.SetCreationLimit(1000000);
    m_world->admin.SetFriendLimit(1000000);
    fill();
    m_window = std::make_unique<ContactsWindow>(m_world->book, m_world->admin);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    slowness();
}

void LargeWindowTest::cleanupTestCase()
{
    m_window.reset();
    m_world.reset();
}

TablePage *LargeWindowTest::page(int index) const
{
    return static_cast<TablePage *>(m_window->findChild<QTabWidget *>()->widget(index));
}

double LargeWindowTest::showMsecs()
{
    QSignalSpy later(&m_world->book, &ContactsBook::changedLately);
    const double before = threadMsecs();
    const PaintCounter paints(page(m_window->findChild<QTabWidget *>()->currentIndex())->table()->viewport());
    int paintsBefore = 0;
    connect(&m_world->book, &ContactsBook::changedLately, &paints, [&] { paintsBefore = paints.count(); });
    if (!later.wait()) {
        return -1;
    }
    QCoreApplication::processEvents(); // lays out and paints what has changed
    const double msecs = threadMsecs() - before;
    m_wasPainted = paints.count() > paintsBefore;
    return msecs;
}

void LargeWindowTest::fill()
{
    ContactsBook &book = m_world->book;
    const auto run = [&book](const char *sql) {
        Statement(book.database().handle(), QString::fromLatin1(sql)).bind(Count).run();
    };
    QVERIFY(book.change([&] {
        run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
            " INSERT INTO person SELECT printf('p%06d', i), printf('5%06d', i), printf('person %d', i), 0 "
            "FROM n");
        run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
            " INSERT INTO contact (owner_id, person_id, remark_name, is_friend)"
            " SELECT 'u100001', printf('p%06d', i), '', 0 FROM n");
        Statement(
            book.database().handle(),
            QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
                           " INSERT INTO conference (id, conf_id, dial_number, title, host_id, start_msecs,"
                           " duration_msecs, participant_limit)"
                           " SELECT 1000 + i, printf('c%d', i), printf('7%06d', i), printf('conference %d', "
                           "i), 'u100001',"
                           " ? + i * 3600000, 1800000, 20 FROM n"))
            .bind(Count)
            .bind(m_world->nowMsecs + HourMsecs)
            .run();
        run("INSERT INTO participant SELECT id, 'u100001', 0, 0, start_msecs FROM conference WHERE id > 1000"
            " AND id <= 1000 + ?");
        run("INSERT INTO participant SELECT id, printf('p%06d', id - 1000), 1, 0, start_msecs FROM conference"
            " WHERE id > 1000 AND id <= 1000 + ?");
        return true;
    }));
    QCOMPARE(book.people().contacts(QStringLiteral("u100001")).size(), Count + 23);
}

double LargeWindowTest::slowness()
{
    constexpr double quietMsecs = 150 * Slower; // for reading all people
    const double before = threadMsecs();
    const int count = m_world->book.people().contacts(QStringLiteral("u100001")).size();
    const double now = count < Count ? 1 : qMax(1., (threadMsecs() - before) / quietMsecs);
    return qMax(now, std::exchange(m_lastSlowness, now));
}
