// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "databasefile.h"
#include "limitedapplication.h"
#include "sampleworld.h"

#include "logcapture.h"

#include "core/databaseerror.h"
#include "core/openinglock.h"
#include "testcolumns.h"

#include <QDir>
#include <QSqlQuery>
#include <QtTest>

#include <functional>
#include <future>
#include <thread>

#include <sys/stat.h>

namespace {

unsigned modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777U : 0U;
}

using Obstacle = std::function<std::function<void()>(const QString &file)>;

/// Puts a folder where a file ought to be. The returned function removes it.
Obstacle folderInPlaceOf(const QString &suffix)
{
    return [suffix](const QString &file) {
        QDir().mkdir(file + suffix);
        return [path = file + suffix] {
            QDir().rmdir(path);
        };
    };
}

/// Locks the file exclusively. The returned function unlocks it.
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

Q_DECLARE_METATYPE(Obstacle)

/// Databases that cannot be opened because of the disk, another process or file permissions. Nothing may be
/// lost.
class TestDatabaseFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHealthyFileIsNeverSetAside_data();
    void aHealthyFileIsNeverSetAside();
    void aLockIsWaitedFor();
    void aDamagedFileInUseIsLeftToItsUser();
    void withoutRoomTheDamagedFileStays();
    void othersCannotRead();
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
    // The permissions set by older versions.
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
