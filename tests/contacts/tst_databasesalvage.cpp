// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefile.h"
#include "sampleworld.h"

#include "logcapture.h"

#include "core/databaseerror.h"
#include "core/middlekey.h"
#include "core/salvage.h"
#include "core/statement.h"
#include "testcolumns.h"

#include <QDir>
#include <QtTest>

namespace {

/// Adds 4000 people and as many contacts, friend requests, conferences and seats.
void fillLargely(const QString &file)
{
    constexpr int count = 4000;
    ContactsBook book(file, fixedClock());
    addPeople(book, count);
    QVERIFY(book.change([&book] {
        for (int i = 0; i < count; ++i) {
            const QString person = QStringLiteral("p%1").arg(i, 6, 10, QLatin1Char('0'));
            book.people().setContact(QStringLiteral("u100001"), person, QString(), true);
            book.people().addFriendRequest(QStringLiteral("u100002"), person);
            Conference conference;
            conference.title = QStringLiteral("周会");
            conference.hostId = QStringLiteral("u100001");
            conference.startMsecs = i;
            conference.participantLimit = 2;
            book.conferences().setAttendance(book.conferences().add(conference).id, person,
                                             Attendance::Invited);
        }
        return true;
    }));
}

} // namespace

/// What is recovered from a damaged database.
class TestDatabaseSalvage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatCanBeReadOfADamagedFileIsKept();
    void whatLiesBetweenDamagedPlacesIsKept_data();
    void whatLiesBetweenDamagedPlacesIsKept();
    void aMiddleKeyIsInTheMiddle_data();
    void aMiddleKeyIsInTheMiddle();
    void aFileOfRubbishIsReplacedAndToldOf();
    void nobodySalvagedBringsTheSample();
    void whoCreatedWhatIsSalvagedOnce();
    void noRoomInTheMiddleOfATableIsAnError();

private:
    DataFolder m_large; ///< filled on first use
};

void TestDatabaseSalvage::whatCanBeReadOfADamagedFileIsKept()
{
    constexpr int peopleCount = 5000;
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        addPeople(book, peopleCount);
        QVERIFY(
            book.perform(QStringLiteral("Create Conference"), QString()).contains(QStringLiteral("\"OK\"")));
    }
    const qint64 size = QFileInfo(folder.file).size();
    overwrite(folder.file, size / 2, size / 2 + 16 * 4096);
    const LogCapture log(LogCapture::Unexpected::Passes);
    QString notice;
    int kept = 0;
    {
        ContactsBook book(folder.file, fixedClock());
        kept = book.people().all().size();
        notice = book.session().notice();
        // Every index finds the people that were kept.
        QVERIFY(book.people().byAccount(QStringLiteral("9000000")).has_value());
        QCOMPARE(book.people().byName(QStringLiteral("第%1位").arg(peopleCount - 1), 2).size(), 1);
    }
    QVERIFY2(kept > peopleCount / 2 && kept < peopleCount + 40, qPrintable(QString::number(kept)));
    const QStringList setAside = folder.setAside();
    QCOMPARE(setAside.size(), 1);
    QCOMPARE(QFileInfo(QFileInfo(folder.file).dir().filePath(setAside.at(0))).size(), size);
    QVERIFY2(notice.contains(setAside.at(0)), qPrintable(notice));
    QVERIFY2(notice.contains(QStringLiteral("已找回 %1 位联系人").arg(kept)), qPrintable(notice));
    QCOMPARE(log.texts(QtCriticalMsg).size(), 2);

    // From now on the database is sound; the notice stays until it is read.
    ContactsBook again(folder.file, fixedClock());
    QCOMPARE(again.people().all().size(), kept);
    QCOMPARE(again.session().notice(), notice);
    QCOMPARE(folder.setAside(), setAside);
    Statement integrity(again.database().handle(), QStringLiteral("PRAGMA integrity_check"));
    QVERIFY(integrity.run().next());
    QCOMPARE(integrity.text(0), QStringLiteral("ok"));
}

void TestDatabaseSalvage::whatLiesBetweenDamagedPlacesIsKept_data()
{
    addColumns<QString, QVector<int>>({"table", "places"});
    for (const char *table : {"person", "contact", "conference", "participant", "friend_request"}) {
        QTest::addRow("%s, seven places", table)
            << QString::fromLatin1(table) << QVector<int>{8, 20, 35, 50, 65, 80, 92};
    }
    QTest::newRow("person, two places") << QStringLiteral("person") << QVector<int>{30, 70};
    QTest::newRow("person, both ends") << QStringLiteral("person") << QVector<int>{0, 99};
    QTest::newRow("conference, both ends") << QStringLiteral("conference") << QVector<int>{0, 99};
}

void TestDatabaseSalvage::whatLiesBetweenDamagedPlacesIsKept()
{
    QFETCH(QString, table);
    QFETCH(QVector<int>, places);
    if (!QFile::exists(m_large.file)) {
        fillLargely(m_large.file);
    }
    const DataFolder folder;
    const auto rows = [&table](ContactsBook &book) {
        Statement query(book.database().handle(), QStringLiteral("SELECT count(*) FROM ") + table);
        query.run().next();
        return query.smallNumber(0);
    };
    int before = 0;
    {
        ContactsBook large(m_large.file, fixedClock());
        before = rows(large);
    }
    QVERIFY(QDir().mkpath(QFileInfo(folder.file).path()) && QFile::copy(m_large.file, folder.file));
    // Overwrite one page of the table at each place, and nothing else.
    const QVector<int> pages = leavesOf(folder.file, table);
    QVERIFY2(pages.size() > 20, qPrintable(QString::number(pages.size())));
    for (const int place : qAsConst(places)) {
        overwritePage(folder.file, pages.at(pages.size() * place / 100));
    }
    const LogCapture log(LogCapture::Unexpected::Passes);
    QElapsedTimer timer;
    timer.start();
    ContactsBook book(folder.file, fixedClock());
    QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(folder.setAside().size(), 1);
    const int lost = before - rows(book);
    const int perPage = before / pages.size() + 1;
    // Pages differ in how full they are, and a neighbouring row may be lost, too.
    QVERIFY2(
        lost > 0 && lost <= places.size() * perPage * 3 / 2,
        qPrintable(QStringLiteral("%1 of %2 rows lost, %3 on each page").arg(lost).arg(before).arg(perPage)));
}

void TestDatabaseSalvage::aMiddleKeyIsInTheMiddle_data()
{
    addColumns<RowKey, RowKey, RowKey>({"low", "high", "middle"});
    const auto text = [](const char *value) {
        return QVariant(QString::fromUtf8(value));
    };
    const QVariant smallest(std::numeric_limits<qint64>::min());
    QTest::newRow("numbers") << RowKey{10LL} << RowKey{20LL} << RowKey{15LL};
    QTest::newRow("neighbours") << RowKey{10LL} << RowKey{11LL} << RowKey();
    QTest::newRow("the ends of the numbers")
        << RowKey{smallest} << RowKey{std::numeric_limits<qint64>::max()} << RowKey{-1LL};
    QTest::newRow("texts") << RowKey{text("p1")} << RowKey{text("p9")} << RowKey{text("p5")};
    QTest::newRow("a text and its beginning")
        << RowKey{text("p")} << RowKey{text("p99")} << RowKey{text("p44")};
    QTest::newRow("characters beside each other")
        << RowKey{text("p1")} << RowKey{text("p2")} << RowKey{text("p15")};
    QTest::newRow("Chinese") << RowKey{text("一")} << RowKey{text("三")} << RowKey{text("一6")};
    QTest::newRow("the same") << RowKey{text("p")} << RowKey{text("p")} << RowKey();
    QTest::newRow("the second column")
        << RowKey{text("o"), 1LL} << RowKey{text("o"), 9LL} << RowKey{text("o"), 5LL};
    QTest::newRow("the first of two columns")
        << RowKey{2LL, text("x")} << RowKey{8LL, text("x")} << RowKey{5LL, text("")};
    QTest::newRow("neighbours in the first of two")
        << RowKey{2LL, text("x")} << RowKey{3LL, text("x")} << RowKey{3LL, text("")};
    QTest::newRow("a number and a text") << RowKey{2LL} << RowKey{text("x")} << RowKey();
    QTest::newRow("of other lengths") << RowKey{2LL} << RowKey{4LL, 4LL} << RowKey();
}

void TestDatabaseSalvage::aMiddleKeyIsInTheMiddle()
{
    QFETCH(RowKey, low);
    QFETCH(RowKey, high);
    QFETCH(RowKey, middle);
    MiddleKey finder;
    finder.meet({QStringLiteral("0123456789p")});
    QCOMPARE(finder.between(low, high).value_or(RowKey()), middle);
}

void TestDatabaseSalvage::aFileOfRubbishIsReplacedAndToldOf()
{
    const DataFolder folder;
    worldIn(folder.file);
    overwrite(folder.file, 4096, QFileInfo(folder.file).size());
    const LogCapture log(LogCapture::Unexpected::Passes);
    ContactsBook book(folder.file, fixedClock());
    QCOMPARE(folder.setAside().size(), 1);
    QVERIFY(book.session().notice().contains(folder.setAside().at(0)));
    QVERIFY(book.session().notice().contains(QStringLiteral("示例数据")));
    QVERIFY(book.session().user().has_value());
}

void TestDatabaseSalvage::nobodySalvagedBringsTheSample()
{
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        QVERIFY(Administration(book).Reset());
    }
    overwriteTable(folder.file, QStringLiteral("notice"));
    const LogCapture log(LogCapture::Unexpected::Passes);
    ContactsBook book(folder.file, fixedClock());
    QCOMPARE(folder.setAside().size(), 1);
    QCOMPARE(book.database().salvaged().people, 0);
    QVERIFY(book.database().salvaged().rows > 0); // the session
    QVERIFY(book.session().notice().contains(QStringLiteral("示例数据")));
    QVERIFY(book.session().user().has_value());
    QVERIFY(book.people().byAccount(QStringLiteral("100002")).has_value());
}

void TestDatabaseSalvage::whoCreatedWhatIsSalvagedOnce()
{
    constexpr int howMany = 3;
    const DataFolder folder;
    const auto creations = [](ContactsBook &book) {
        return book.conferences().creationsBetween(QStringLiteral("u100001"), 0, book.nowMsecs());
    };
    {
        ContactsBook book(folder.file, fixedClock());
        QVERIFY(book.change([&book] {
            for (int i = 0; i < howMany; ++i) {
                book.conferences().noteCreation(QStringLiteral("u100001"), book.nowMsecs() - howMany + i);
            }
            return true;
        }));
        QCOMPARE(creations(book), howMany);
    }
    overwriteTable(folder.file, QStringLiteral("notice"));
    const LogCapture log(LogCapture::Unexpected::Passes);
    ContactsBook book(folder.file, fixedClock());
    QCOMPARE(folder.setAside().size(), 1);
    QCOMPARE(creations(book), howMany);
}

void TestDatabaseSalvage::noRoomInTheMiddleOfATableIsAnError()
{
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        addPeople(book, 3000);
    }
    const QTemporaryDir other;
    const Database fresh(other.filePath(QStringLiteral("contacts.db")));
    {
        Statement limit(fresh.handle(), QStringLiteral("PRAGMA max_page_count = 50"));
        QVERIFY(limit.run().next());
        QCOMPARE(limit.smallNumber(0), 50);
    }
    Transaction transaction(fresh.handle());
    QVERIFY_EXCEPTION_THROWN(salvage(folder.file, fresh.handle()), DatabaseError);
    QCOMPARE(QSqlDatabase::connectionNames().size(), 1); // that of the fresh database
}

QTEST_GUILESS_MAIN(TestDatabaseSalvage)
#include "tst_databasesalvage.moc"
