// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "logcapture.h"

#include "book/useroverview.h"
#include "core/databaseerror.h"
#include "core/middlekey.h"
#include "core/openinglock.h"
#include "core/salvage.h"
#include "core/statement.h"
#include "testcolumns.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <functional>
#include <future>
#include <thread>
#include <vector>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

/// The application, which may not write files beyond a size: what a full disk is like.
class Application : public QProcess
{
public:
    explicit Application(const QString &dataFolder, int roomBytes = -1) : m_roomBytes(roomBytes)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), dataFolder);
        setProcessEnvironment(environment);
        start(QStringLiteral(APPLICATION), {QStringLiteral("--service")});
    }

protected:
    void setupChildProcess() override
    {
        if (m_roomBytes >= 0) {
            const rlimit limit{static_cast<rlim_t>(m_roomBytes), static_cast<rlim_t>(m_roomBytes)};
            setrlimit(RLIMIT_FSIZE, &limit);
            signal(SIGXFSZ, SIG_IGN);
        }
    }

private:
    int m_roomBytes;
};

struct DataFolder
{
    QTemporaryDir root;
    QString file = root.filePath(QStringLiteral("kelvane-contacts/contacts.db"));

    /// Without the journals that lie beside them.
    QStringList setAside() const
    {
        QStringList names = QFileInfo(file).dir().entryList({QStringLiteral("*damaged*")}, QDir::Files);
        names.erase(std::remove_if(names.begin(), names.end(),
                                   [](const QString &name) { return name.count(QLatin1Char('-')) > 1; }),
                    names.end());
        return names;
    }
};

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

/// Damages the first page of one table; all the others can be read.
void overwriteTable(const QString &fileName, const QString &table)
{
    int page = 0;
    int pageSize = 0;
    {
        const Database database(fileName);
        Statement root(database.handle(),
                       QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = ?"));
        QVERIFY(root.bind(table).run().next());
        page = root.smallNumber(0);
        Statement size(database.handle(), QStringLiteral("PRAGMA page_size"));
        QVERIFY(size.run().next());
        pageSize = size.smallNumber(0);
    }
    overwrite(fileName, qint64(page - 1) * pageSize, qint64(page) * pageSize);
}

/// The numbers of the pages that hold the rows of @p table, in the order of its key.
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
    // Of an inner page each cell begins with the number of a page below, and its header holds the last one's.
    const std::function<void(int)> collect = [&](int page) {
        const int start = (page - 1) * 4096;
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

/// 4000 people, as many contacts, requests, conferences and seats in them.
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

unsigned modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777U : 0U;
}

using Obstacle = std::function<std::function<void()>(const QString &file)>;

/// Puts a folder where a file ought to be; what comes back takes it away.
Obstacle folderInPlaceOf(const QString &suffix)
{
    return [suffix](const QString &file) {
        QDir().mkdir(file + suffix);
        return [path = file + suffix] {
            QDir().rmdir(path);
        };
    };
}

/// Has the file for itself.
std::function<void()> lockExclusively(const QString &file)
{
    const QString name = QStringLiteral("other");
    QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    other.setDatabaseName(file);
    other.open();
    for (const char *sql : {"PRAGMA locking_mode = EXCLUSIVE", "BEGIN EXCLUSIVE",
                            "UPDATE session SET friend_limit = friend_limit"}) {
        QSqlQuery(other).exec(QLatin1String(sql));
    }
    return [name] {
        QSqlDatabase::database(name).close();
        QSqlDatabase::removeDatabase(name);
    };
}

} // namespace

using Use = std::function<void(ContactsBook &book)>;

Q_DECLARE_METATYPE(Obstacle)
Q_DECLARE_METATYPE(Use)

/// A database that cannot be read, for reasons that have nothing to do with it and for damage.
class TestDatabaseFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHealthyFileIsNeverSetAside_data();
    void aHealthyFileIsNeverSetAside();
    void aLockIsWaitedFor();
    void whatCanBeReadOfADamagedFileIsKept();
    void whatLiesBetweenDamagedPlacesIsKept_data();
    void whatLiesBetweenDamagedPlacesIsKept();
    void aMiddleKeyIsInTheMiddle_data();
    void aMiddleKeyIsInTheMiddle();
    void aFileOfRubbishIsReplacedAndToldOf();
    void nobodySalvagedBringsTheSample();
    void whoCreatedWhatIsSalvagedOnce();
    void ofManyStartsOneSetsAside();
    void aDamagedFileInUseIsLeftToItsUser();
    void aStartThatIsKilledLosesNothing();
    void aReplacementThatWasInterruptedIsFinished_data();
    void aReplacementThatWasInterruptedIsFinished();
    void withoutRoomTheDamagedFileStays();
    void noRoomInTheMiddleOfATableIsAnError();
    void damageThatIsMetInALargeFileIsMendedAtTheNextStart();
    void damageIsHeededWhereverItIsMet_data();
    void damageIsHeededWhereverItIsMet();
    void othersCannotRead();

private:
    DataFolder m_large; ///< filled when it is first wanted
};

void TestDatabaseFaults::aHealthyFileIsNeverSetAside_data()
{
    addColumns<int, Obstacle>({"roomBytes", "obstacle"});
    const Obstacle none = [](const QString &) {
        return [] {
        };
    };
    for (const int room : {0, 1, 512, 4096, 30000}) {
        QTest::addRow("room for %d bytes", room) << room << none;
    }
    QTest::newRow("the -wal cannot be read") << -1 << folderInPlaceOf(QStringLiteral("-wal"));
    QTest::newRow("the -shm cannot be read") << -1 << folderInPlaceOf(QStringLiteral("-shm"));
    QTest::newRow("another process has it locked") << -1 << Obstacle(lockExclusively);
}

void TestDatabaseFaults::aHealthyFileIsNeverSetAside()
{
    QFETCH(int, roomBytes);
    QFETCH(Obstacle, obstacle);
    const DataFolder folder;
    const QString before = worldIn(folder.file);
    const std::function<void()> remove = obstacle(folder.file);
    Application application(folder.root.path(), roomBytes);
    const bool hasEnded = application.waitForFinished(30000);
    application.kill();
    application.waitForFinished();
    const QByteArray said = application.readAllStandardError();
    remove();
    QVERIFY2(hasEnded, said.constData());
    QCOMPARE(application.exitStatus(), QProcess::NormalExit);
    QCOMPARE(application.exitCode(), 1);
    QVERIFY2(said.contains("The contacts cannot be opened"), said.constData());
    QCOMPARE(folder.setAside(), QStringList());
    QCOMPARE(worldIn(folder.file), before);
}

void TestDatabaseFaults::aLockIsWaitedFor()
{
    const DataFolder folder;
    const QString before = worldIn(folder.file);
    std::promise<void> locked;
    std::thread other([&folder, &locked] {
        const std::function<void()> unlock = lockExclusively(folder.file);
        locked.set_value();
        std::this_thread::sleep_for(std::chrono::milliseconds(1000));
        unlock();
    });
    locked.get_future().wait();
    QElapsedTimer timer;
    timer.start();
    QString after;
    try {
        after = worldIn(folder.file);
    } catch (const DatabaseError &error) {
        after = QString::fromUtf8(error.what());
    }
    const qint64 waited = timer.elapsed();
    other.join();
    QCOMPARE(after, before);
    QVERIFY2(waited >= 500, qPrintable(QString::number(waited)));
    QCOMPARE(folder.setAside(), QStringList());
}

void TestDatabaseFaults::whatCanBeReadOfADamagedFileIsKept()
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
        // Those who are there are found by every index.
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

    // It is sound from now on, and what was told stays to be read.
    ContactsBook again(folder.file, fixedClock());
    QCOMPARE(again.people().all().size(), kept);
    QCOMPARE(again.session().notice(), notice);
    QCOMPARE(folder.setAside(), setAside);
    Statement integrity(again.database().handle(), QStringLiteral("PRAGMA integrity_check"));
    QVERIFY(integrity.run().next());
    QCOMPARE(integrity.text(0), QStringLiteral("ok"));
}

void TestDatabaseFaults::whatLiesBetweenDamagedPlacesIsKept_data()
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

void TestDatabaseFaults::whatLiesBetweenDamagedPlacesIsKept()
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
    // One page of the table at each of the places, and nothing else.
    const QVector<int> pages = leavesOf(folder.file, table);
    QVERIFY2(pages.size() > 20, qPrintable(QString::number(pages.size())));
    for (const int place : qAsConst(places)) {
        const qint64 page = pages.at(pages.size() * place / 100) - 1;
        overwrite(folder.file, page * 4096, (page + 1) * 4096);
    }
    const LogCapture log(LogCapture::Unexpected::Passes);
    QElapsedTimer timer;
    timer.start();
    ContactsBook book(folder.file, fixedClock());
    QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(folder.setAside().size(), 1);
    const int lost = before - rows(book);
    const int perPage = before / pages.size() + 1;
    // A page that is not quite full holds a few less, and one more row may be lost with its neighbour.
    QVERIFY2(
        lost > 0 && lost <= places.size() * perPage * 3 / 2,
        qPrintable(QStringLiteral("%1 of %2 rows lost, %3 on each page").arg(lost).arg(before).arg(perPage)));
}

void TestDatabaseFaults::aMiddleKeyIsInTheMiddle_data()
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

void TestDatabaseFaults::aMiddleKeyIsInTheMiddle()
{
    QFETCH(RowKey, low);
    QFETCH(RowKey, high);
    QFETCH(RowKey, middle);
    MiddleKey finder;
    finder.meet({QStringLiteral("0123456789p")});
    QCOMPARE(finder.between(low, high).value_or(RowKey()), middle);
}

void TestDatabaseFaults::aFileOfRubbishIsReplacedAndToldOf()
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

void TestDatabaseFaults::nobodySalvagedBringsTheSample()
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

void TestDatabaseFaults::whoCreatedWhatIsSalvagedOnce()
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

void TestDatabaseFaults::ofManyStartsOneSetsAside()
{
    constexpr int rounds = 5;
    constexpr int startCount = 4;
    for (int round = 0; round < rounds; ++round) {
        const DataFolder folder;
        {
            ContactsBook book(folder.file, fixedClock());
            addPeople(book, 500);
        }
        // Not a place in the file: what lies there changes with every table that is added.
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

void TestDatabaseFaults::aDamagedFileInUseIsLeftToItsUser()
{
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        addPeople(book, 500);
        QVERIFY(UseLock::isHeld(folder.file));
    }
    QVERIFY(!UseLock::isHeld(folder.file));
    Application running(folder.root.path());
    QVERIFY(running.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(UseLock::isHeld(folder.file), 20000);
    const qint64 size = QFileInfo(folder.file).size();
    overwrite(folder.file, size / 2, size / 2 + 4 * 4096);

    Application second(folder.root.path());
    QVERIFY(second.waitForFinished(30000));
    const QByteArray said = second.readAllStandardError();
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 1);
    QVERIFY2(said.contains("another process works with it"), said.constData());
    QCOMPARE(folder.setAside(), QStringList());
    QCOMPARE(running.state(), QProcess::Running);

    running.kill();
    running.waitForFinished();
    const LogCapture log(LogCapture::Unexpected::Passes);
    worldIn(folder.file);
    QCOMPARE(folder.setAside().size(), 1);
}

void TestDatabaseFaults::aStartThatIsKilledLosesNothing()
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

void TestDatabaseFaults::aReplacementThatWasInterruptedIsFinished_data()
{
    addColumns<bool, bool, bool>({"journalMoved", "fileMoved", "anotherStart"});
    QTest::newRow("before anything was set aside") << false << false << false;
    QTest::newRow("after the journal") << true << false << false;
    QTest::newRow("after the file") << true << true << false;
    QTest::newRow("after the file, and a start that made an empty one") << true << true << true;
}

void TestDatabaseFaults::aReplacementThatWasInterruptedIsFinished()
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
    // Back to how it was in between.
    QVERIFY(QFile::rename(folder.file, QString(folder.file + QStringLiteral(".replacement-"))
                                           .append(name.mid(name.indexOf(QLatin1Char('-')) + 1))));
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

void TestDatabaseFaults::withoutRoomTheDamagedFileStays()
{
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        addPeople(book, 3000);
    }
    overwriteTable(folder.file, QStringLiteral("notice"));
    const auto bytes = [&folder] {
        QFile file(folder.file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = bytes();
    Application application(folder.root.path(), before.size() / 2);
    const bool hasEnded = application.waitForFinished(30000);
    application.kill();
    application.waitForFinished();
    const QByteArray said = application.readAllStandardError();
    QVERIFY2(hasEnded, said.constData());
    QCOMPARE(application.exitCode(), 1);
    QVERIFY2(said.contains("The contacts cannot be opened"), said.constData());
    QCOMPARE(folder.setAside(), QStringList());
    QVERIFY(bytes() == before);

    const LogCapture log(LogCapture::Unexpected::Passes);
    ContactsBook book(folder.file, fixedClock());
    QCOMPARE(folder.setAside().size(), 1);
    QVERIFY(book.session().notice().contains(folder.setAside().at(0)));
    QVERIFY(book.people().all().size() > 3000);
}

void TestDatabaseFaults::noRoomInTheMiddleOfATableIsAnError()
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
    QCOMPARE(QSqlDatabase::connectionNames().size(), 1); // the fresh one's
}

void TestDatabaseFaults::damageThatIsMetInALargeFileIsMendedAtTheNextStart()
{
    const DataFolder folder;
    {
        ContactsBook book(folder.file, fixedClock());
        addPeople(book, 3000);
    }
    const QVector<int> pages = leavesOf(folder.file, QStringLiteral("person"));
    const qint64 page = pages.at(pages.size() / 2) - 1;
    overwrite(folder.file, page * 4096, (page + 1) * 4096);
    // Larger than what is checked at a start, with nothing in it.
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

void TestDatabaseFaults::damageIsHeededWhereverItIsMet_data()
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

void TestDatabaseFaults::damageIsHeededWhereverItIsMet()
{
    QFETCH(QString, damaged);
    QFETCH(Use, use);
    const DataFolder folder;
    worldIn(folder.file);
    overwriteTable(folder.file, damaged);
    // Larger than what is checked at a start.
    QFile large(folder.file);
    QVERIFY(large.resize(300 * 1024 * 1024));
    const LogCapture log(LogCapture::Unexpected::Passes);
    ContactsBook book(folder.file, fixedClock());
    QVERIFY(!QFile::exists(folder.file + QStringLiteral(".check")));
    use(book);
    QVERIFY(QFile::exists(folder.file + QStringLiteral(".check")));
}

void TestDatabaseFaults::othersCannotRead()
{
    const mode_t former = umask(022);
    const DataFolder folder;
    const QString path = QFileInfo(folder.file).path();
    {
        const ContactsBook book(folder.file);
        QCOMPARE(modeOf(path), 0700U);
        for (const char *suffix : {"", "-wal", "-shm", ".lock"}) {
            QCOMPARE(modeOf(folder.file + QLatin1String(suffix)), 0600U);
        }
    }
    // As a former version left them.
    const QString damaged = folder.file + QStringLiteral(".damaged-20260101T000000000");
    QVERIFY(QFile::copy(folder.file, damaged));
    QVERIFY(chmod(QFile::encodeName(path).constData(), 0755) == 0);
    for (const QString &name : {folder.file, damaged}) {
        QVERIFY(chmod(QFile::encodeName(name).constData(), 0644) == 0);
    }
    {
        const ContactsBook book(folder.file);
        QCOMPARE(modeOf(path), 0700U);
        for (const QString &name : {folder.file, QString(folder.file + QStringLiteral("-wal")),
                                    QString(folder.file + QStringLiteral("-shm")), damaged}) {
            QCOMPARE(modeOf(name), 0600U);
        }
    }
    umask(former);
}

QTEST_GUILESS_MAIN(TestDatabaseFaults)
#include "tst_databasefaults.moc"
