// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefile.h"
#include "limitedapplication.h"
#include "sampleworld.h"

#include "logcapture.h"

#include "book/useroverview.h"
#include "core/databaseerror.h"
#include "testcolumns.h"

#include <QDir>
#include <QtTest>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

using Use = std::function<void(ContactsBook &book)>;

Q_DECLARE_METATYPE(Use)

/// Detecting and replacing a damaged database: only once, completely, and after an interruption.
class TestDatabaseReplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ofManyStartsOneSetsAside();
    void aStartThatIsKilledLosesNothing();
    void aReplacementThatWasInterruptedIsFinished_data();
    void aReplacementThatWasInterruptedIsFinished();
    void damageThatIsMetInALargeFileIsMendedAtTheNextStart();
    void damageIsHeededWhereverItIsMet_data();
    void damageIsHeededWhereverItIsMet();
};

void TestDatabaseReplacement::ofManyStartsOneSetsAside()
{
    constexpr int rounds = 5;
    constexpr int startCount = 4;
    for (int round = 0; round < rounds; ++round) {
        const DataFolder folder;
        {
            ContactsBook book(folder.file, fixedClock());
            addPeople(book, 500);
        }
        // A table rather than an offset, whose content would change with every added table.
        overwriteTable(folder.file, QStringLiteral("notice"));
        const LogCapture log(LogCapture::Unexpected::Passes);
        std::atomic<int> replaced{0};
        std::atomic<int> failed{0};
        std::vector<std::thread> starts;
        for (int start = 0; start < startCount; ++start) {
            starts.emplace_back([&] {
                try {
                    const Database database(folder.file);
                    replaced += database.setAsideFile().isEmpty() ? 0 : 1;
                } catch (const DatabaseError &) {
                    ++failed;
                }
            });
        }
        for (std::thread &start : starts) {
            start.join();
        }
        QCOMPARE(failed.load(), 0);
        QCOMPARE(replaced.load(), 1);
        QCOMPARE(folder.setAside().size(), 1);
        ContactsBook book(folder.file, fixedClock());
        QVERIFY(book.people().byAccount(QStringLiteral("9000000")).has_value());
    }
}

void TestDatabaseReplacement::aStartThatIsKilledLosesNothing()
{
    constexpr int count = 3000;
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        addPeople(book, count);
    }
    overwriteTable(folder.file, QStringLiteral("notice"));
    const auto isReplacing = [&folder] {
        const QStringList patterns{QStringLiteral("*.new"), QStringLiteral("*damaged*")};
        return !QFileInfo(folder.file).dir().entryList(patterns, QDir::Files).isEmpty();
    };
    Application application(folder.root.path());
    QVERIFY(application.waitForStarted());
    QElapsedTimer waiting;
    waiting.start();
    while (!isReplacing()) {
        QVERIFY(waiting.elapsed() < 20000);
    }
    application.kill();
    application.waitForFinished();
    QCOMPARE(application.exitStatus(), QProcess::CrashExit);

    const LogCapture log(LogCapture::Unexpected::Passes);
    ContactsBook book(folder.file, fixedClock());
    QCOMPARE(folder.setAside().size(), 1);
    QVERIFY(book.session().notice().contains(folder.setAside().at(0)));
    QVERIFY(book.people().byAccount(QStringLiteral("9000000")).has_value());
    QVERIFY(book.people().all().size() > count);
    QVERIFY(!QFile::exists(folder.file + QStringLiteral(".new")));
}

void TestDatabaseReplacement::aReplacementThatWasInterruptedIsFinished_data()
{
    addColumns<bool, bool, bool>({"journalMoved", "fileMoved", "anotherStart"});
    QTest::newRow("before anything was set aside") << false << false << false;
    QTest::newRow("after the journal") << true << false << false;
    QTest::newRow("after the file") << true << true << false;
    QTest::newRow("after the file, and a start that made an empty one") << true << true << true;
}

void TestDatabaseReplacement::aReplacementThatWasInterruptedIsFinished()
{
    QFETCH(bool, journalMoved);
    QFETCH(bool, fileMoved);
    QFETCH(bool, anotherStart);
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        addPeople(book, 10);
    }
    overwriteTable(folder.file, QStringLiteral("notice"));
    const LogCapture log(LogCapture::Unexpected::Passes);
    const QString world = worldIn(folder.file);
    QCOMPARE(folder.setAside().size(), 1);
    const QString name = folder.setAside().at(0);
    const QString setAside = QFileInfo(folder.file).dir().filePath(name);
    const qint64 size = QFileInfo(setAside).size();
    // Restore the state in the middle of the replacement.
    QVERIFY(QFile::rename(folder.file, QString(folder.file + QStringLiteral(".replacement-"))
                                           .append(name.midRef(name.indexOf(QLatin1Char('-')) + 1))));
    const QString journal = QStringLiteral("-wal");
    QFile::remove(setAside + journal);
    QFile rest((journalMoved ? setAside : folder.file) + journal);
    QVERIFY(rest.open(QIODevice::WriteOnly));
    rest.write("rest");
    rest.close();
    if (!fileMoved) {
        QVERIFY(QFile::rename(setAside, folder.file));
    }
    if (anotherStart) {
        QFile empty(folder.file);
        QVERIFY(empty.open(QIODevice::WriteOnly));
    }
    QCOMPARE(worldIn(folder.file), world);
    ContactsBook book(folder.file, fixedClock());
    QVERIFY(book.session().notice().contains(name));
    QCOMPARE(folder.setAside(), QStringList{name});
    QCOMPARE(QFileInfo(setAside).size(), size);
    QCOMPARE(QFileInfo(setAside + journal).size(), qint64(4));
    QVERIFY(QFileInfo(folder.file).dir().entryList({QStringLiteral("*replacement*")}, QDir::Files).isEmpty());
}

void TestDatabaseReplacement::damageThatIsMetInALargeFileIsMendedAtTheNextStart()
{
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        addPeople(book, 3000);
    }
    const QVector<int> pages = leavesOf(folder.file, QStringLiteral("person"));
    overwritePage(folder.file, pages.at(pages.size() / 2));
    // Pad the file with zeros beyond the size that is checked at start-up.
    QFile large(folder.file);
    QVERIFY(large.resize(300 * 1024 * 1024));
    const LogCapture log(LogCapture::Unexpected::Passes);
    {
        ContactsBook book(folder.file, fixedClock());
        QCOMPARE(folder.setAside(), QStringList());
        QVERIFY(
            book.perform(QStringLiteral("Search Conference"), QString()).contains(QStringLiteral("\"OK\"")));
        QVERIFY(!QFile::exists(folder.file + QStringLiteral(".check")));
        const QString lost = QStringLiteral("p%1").arg(1500, 6, 10, QLatin1Char('0'));
        const QString answer =
            book.perform(QStringLiteral("Add Friends"), QStringLiteral("{\"userId\":\"%1\"}").arg(lost));
        QVERIFY2(answer.contains(QStringLiteral("Internal Error")), qPrintable(answer));
        QVERIFY(QFile::exists(folder.file + QStringLiteral(".check")));
    }
    ContactsBook book(folder.file, fixedClock());
    QCOMPARE(folder.setAside().size(), 1);
    QVERIFY(book.session().notice().contains(folder.setAside().at(0)));
    QVERIFY(book.people().all().size() > 2800);
    QVERIFY(!QFile::exists(folder.file + QStringLiteral(".check")));
}

void TestDatabaseReplacement::damageIsHeededWhereverItIsMet_data()
{
    addColumns<QString, Use>({"damaged", "use"});
    const auto person = QStringLiteral("person");
    QTest::newRow("a request") << person << Use([](ContactsBook &book) {
        book.perform(QStringLiteral("Search Conference"), QString());
    });
    QTest::newRow("the contacts' names") << person << Use([](ContactsBook &book) { book.contactNames(); });
    QTest::newRow("what was performed")
        << QStringLiteral("sqlite_autoindex_performed_request_1")
        << Use([](ContactsBook &book) { book.wasPerformed(QStringLiteral("1")); });
    QTest::newRow("a change") << person << Use([](ContactsBook &book) {
        book.change([&book] { return !book.people().all().isEmpty(); });
    });
    QTest::newRow("the snapshot") << person
                                  << Use([](ContactsBook &book) { Administration(book).Snapshot(); });
    QTest::newRow("how things are") << person << Use([](ContactsBook &book) { userOverview(book); });
}

void TestDatabaseReplacement::damageIsHeededWhereverItIsMet()
{
    QFETCH(QString, damaged);
    QFETCH(Use, use);
    const DataFolder folder;
    worldIn(folder.file);
    overwriteTable(folder.file, damaged);
    // Beyond the size that is checked at start-up.
    QFile large(folder.file);
    QVERIFY(large.resize(300 * 1024 * 1024));
    const LogCapture log(LogCapture::Unexpected::Passes);
    ContactsBook book(folder.file, fixedClock());
    QVERIFY(!QFile::exists(folder.file + QStringLiteral(".check")));
    use(book);
    QVERIFY(QFile::exists(folder.file + QStringLiteral(".check")));
}

QTEST_GUILESS_MAIN(TestDatabaseReplacement)
#include "tst_databasereplacement.moc"
