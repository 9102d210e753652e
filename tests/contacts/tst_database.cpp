// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "logcapture.h"

#include "core/databaseerror.h"
#include "core/statement.h"

#include <QDir>
#include <QtTest>

namespace {

QString onlyText(const QSqlDatabase &database, const char *sql)
{
    Statement query(database, QLatin1String(sql));
    query.run().next();
    return query.text(0);
}

/// Creates a file of version 3 with some content.
void makeVersion3(const QString &file)
{
    const QString connection = QStringLiteral("version 3");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(file);
        QVERIFY(database.open());
        QFile schema(QStringLiteral(CONTACT_SOURCE_DIR "/tests/contacts/version3.sql"));
        QVERIFY(schema.open(QIODevice::ReadOnly));
        QStringList statements = QString::fromUtf8(schema.readAll()).split(QLatin1Char('\n'));
        statements += {
            QStringLiteral(
                "INSERT INTO person VALUES ('u1', '100001', '王小明', 0), ('u2', '100002', '李静', 0)"),
            // Foreign keys are off, as they must have been for u3 to get lost.
            QStringLiteral("INSERT INTO contact VALUES ('u1', 'u2', '小李', 1), ('u1', 'u3', '', 1),"
                           " ('u3', 'u1', '', 0)"),
            QStringLiteral("UPDATE session SET user_id = 'u1', seeded = 1, friend_limit = 7"),
        };
        for (const QString &statement : qAsConst(statements)) {
            if (!statement.isEmpty() && !statement.startsWith(QLatin1String("--"))) {
                Statement(database, statement).run();
            }
        }
    }
    QSqlDatabase::removeDatabase(connection);
}

} // namespace

/// The application's database file: creating, keeping and searching it.
class TestDatabase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsSetUpToLast();
    void itIsOpenedAgainAsItWas();
    void whatWasEmptiedStaysEmpty();
    void aTransactionThatIsNotCommittedIsUndone();
    void aFileOfVersion3IsBroughtUpToDate();
    void aFileOfANewerVersionIsRefusedUntouched();
    void aFileThatIsNoDatabaseIsSetAside();
    void aFolderThatCannotBeMadeIsAnError();
    void foreignKeysHold();
    void aDaysQueryWalksOneIndex();
    void aSpokenNameWalksNoTable();
    void anAdministrationThatFailsChangesNothing();
    void theLastThousandRequestsAreKnown();
};

void TestDatabase::itIsSetUpToLast()
{
    const QTemporaryDir folder;
    const Database database(folder.filePath(QStringLiteral("deep/er/contacts.db")));
    QCOMPARE(onlyText(database.handle(), "PRAGMA journal_mode"), QStringLiteral("wal"));
    QCOMPARE(onlyText(database.handle(), "PRAGMA synchronous"), QStringLiteral("2"));
    QCOMPARE(onlyText(database.handle(), "PRAGMA foreign_keys"), QStringLiteral("1"));
    QCOMPARE(onlyText(database.handle(), "PRAGMA user_version"), QStringLiteral("5"));
}

void TestDatabase::itIsOpenedAgainAsItWas()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("contacts.db"));
    QString before;
    {
        ContactsBook book(file, [] { return at("2026-03-07T10:20"); });
        QVERIFY(
            book.perform(QStringLiteral("Create Conference"), QString()).contains(QStringLiteral("\"OK\"")));
        before = Administration(book).Snapshot();
    }
    ContactsBook book(file, [] { return at("2026-03-07T10:20"); });
    QCOMPARE(Administration(book).Snapshot(), before);
}

void TestDatabase::whatWasEmptiedStaysEmpty()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("contacts.db"));
    {
        ContactsBook book(file);
        QVERIFY(Administration(book).Reset());
    }
    ContactsBook book(file);
    QVERIFY(book.people().all().isEmpty());
    QVERIFY(!book.session().user());
}

void TestDatabase::aTransactionThatIsNotCommittedIsUndone()
{
    SampleWorld world;
    const QJsonObject before = world.snapshot();
    {
        const Transaction transaction(world.book.database().handle());
        world.book.people().removeAll();
        QVERIFY(world.book.people().all().isEmpty());
    }
    QCOMPARE(world.snapshot(), before);
}

void TestDatabase::aFileOfVersion3IsBroughtUpToDate()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("contacts.db"));
    makeVersion3(file);
    ContactsBook book(file);
    QCOMPARE(onlyText(book.database().handle(), "PRAGMA user_version"), QStringLiteral("5"));
    QCOMPARE(book.session().user()->account, QStringLiteral("100001"));
    QCOMPARE(book.session().friendLimit(), 7);
    // A contact whose person is missing is dropped.
    const QVector<Person> contacts = book.people().knownAfter(QStringLiteral("u1"), QString(), 10);
    QCOMPARE(contacts.size(), 1);
    QCOMPARE(contacts.at(0).account, QStringLiteral("100002"));
    QCOMPARE(contacts.at(0).remarkName, QStringLiteral("小李"));
    QCOMPARE(onlyText(book.database().handle(), "SELECT count(*) FROM contact"), QStringLiteral("1"));
}

void TestDatabase::aFileOfANewerVersionIsRefusedUntouched()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("contacts.db"));
    {
        const Database database(file);
        Statement(database.handle(), QStringLiteral("PRAGMA user_version = 1000")).run();
    }
    QVERIFY_EXCEPTION_THROWN(ContactsBook book(file), DatabaseError);
    QCOMPARE(QDir(folder.path()).entryList({QStringLiteral("*damaged*")}).size(), 0);
}

void TestDatabase::aFileThatIsNoDatabaseIsSetAside()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("contacts.db"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(8192, 'x'));
    file.close();
    const LogCapture log(LogCapture::Unexpected::Passes);
    ContactsBook book(name);
    QVERIFY(book.session().user());
    QCOMPARE(log.texts(QtCriticalMsg).size(), 2);
    const QStringList kept = QDir(folder.path()).entryList({QStringLiteral("contacts.db.damaged-*")});
    QCOMPARE(kept.size(), 1);
    QCOMPARE(QFileInfo(folder.filePath(kept.at(0))).size(), qint64(8192));
}

void TestDatabase::aFolderThatCannotBeMadeIsAnError()
{
    QVERIFY_EXCEPTION_THROWN(ContactsBook book(QStringLiteral("/proc/nothing/contacts.db")), DatabaseError);
}

void TestDatabase::foreignKeysHold()
{
    SampleWorld world;
    QVERIFY_EXCEPTION_THROWN(world.book.session().login(QStringLiteral("nobody")), DatabaseError);
    QVERIFY_EXCEPTION_THROWN(
        world.book.people().setContact(QStringLiteral("u100001"), QStringLiteral("nobody"), QString(), true),
        DatabaseError);
}

void TestDatabase::aDaysQueryWalksOneIndex()
{
    // The query plan of the search's own statement reads no table from end to end.
    SampleWorld world;
    const QSqlDatabase database = world.book.database().handle();
    Statement query(database, QStringLiteral("EXPLAIN QUERY PLAN ") + ConferenceRepository::ofUserSql());
    query.bind(QString()).bind(0).bind(0).bind(0).bind(0).run();
    QStringList plan;
    while (query.next()) {
        plan.append(query.text(3));
    }
    QVERIFY2(plan.at(0).contains(QLatin1String("participant_by_time")),
             qPrintable(plan.join(QLatin1Char('\n'))));
    QVERIFY(plan.at(0).contains(QLatin1String("user_id=? AND start_msecs>? AND start_msecs<?")));
    for (const QString &step : qAsConst(plan)) {
        QVERIFY2(step.startsWith(QLatin1String("SEARCH")), qPrintable(step));
    }
}

void TestDatabase::aSpokenNameWalksNoTable()
{
    SampleWorld world;
    Statement query(world.book.database().handle(),
                    QStringLiteral("EXPLAIN QUERY PLAN ") + PeopleRepository::contactsByNameSql());
    for (int i = 0; i < 5; ++i) {
        query.bind(QString());
    }
    query.bind(0).run();
    QStringList plan;
    while (query.next()) {
        plan.append(query.text(3));
    }
    const QString whole = plan.join(QLatin1Char('\n'));
    QVERIFY2(whole.contains(QLatin1String("contact_by_remark (owner_id=? AND remark_name=?)")),
             qPrintable(whole));
    QVERIFY2(whole.contains(QLatin1String("person_by_name (name=?)")), qPrintable(whole));
    QVERIFY2(!whole.contains(QLatin1String("SCAN")), qPrintable(whole));
    // Neither branch walks all of an owner's contacts.
    QVERIFY2(!whole.contains(QLatin1String("(owner_id=?)")), qPrintable(whole));
}

void TestDatabase::anAdministrationThatFailsChangesNothing()
{
    SampleWorld world;
    const QJsonObject before = world.snapshot();
    const LogCapture log(LogCapture::Unexpected::Passes);
    QVERIFY(!world.admin.Login(QStringLiteral("nobody")));
    QVERIFY(!world.admin.SetAccountKind(QStringLiteral("100001"), QStringLiteral("golden")));
    QVERIFY(!world.admin.AddPerson(QStringLiteral("100001"), QStringLiteral("重复"), QStringLiteral("free")));
    QVERIFY(!world.admin.AddPerson(QStringLiteral("1"), QStringLiteral("\u200b"), QStringLiteral("free")));
    QVERIFY(!world.admin.AddContact(QStringLiteral("100001"), QStringLiteral("100001"), QString(),
                                    QStringLiteral("friend")));
    QVERIFY(!world.admin.AddContact(QStringLiteral("100001"), QStringLiteral("200001"), QString(),
                                    QStringLiteral("enemy")));
    QVERIFY(!world.admin.SetConferenceState(QStringLiteral("880100001"), QStringLiteral("paused")));
    QVERIFY(!world.admin.SetConferenceState(QStringLiteral("1"), QStringLiteral("ended")));
    const auto add = [&world](const char *number, qint64 start, qint64 duration, int limit,
                              const QStringList &invited) {
        return world.admin.AddConference(QString::fromLatin1(number), QStringLiteral("会"),
                                         QStringLiteral("100001"), start, duration, limit, QString(),
                                         invited);
    };
    QCOMPARE(add("880100001", 1, 60000, 5, {}), QString());
    QCOMPARE(add("12a", 1, 60000, 5, {}), QString());
    QCOMPARE(add("", 1, 60000, 5, {}), QString());
    QCOMPARE(add("1", -1, 60000, 5, {}), QString());
    QCOMPARE(add("1", 1, 86400001, 5, {}), QString());
    QCOMPARE(add("1", 1, 60000, 1, {}), QString());
    QCOMPARE(add("1", 1, 60000, 101, {}), QString());
    QCOMPARE(add("1", 1, 60000, 5, {QStringLiteral("nobody")}), QString());
    QCOMPARE(add("1", 1, 60000, 2, {QStringLiteral("100003"), QStringLiteral("100004")}), QString());
    QCOMPARE(world.snapshot(), before);
}

void TestDatabase::theLastThousandRequestsAreKnown()
{
    SampleWorld world;
    SessionRepository &session = world.book.session();
    const auto name = [](int request) {
        return QStringLiteral("request %1").arg(request);
    };
    QVERIFY(world.book.change([&] {
        for (int request = 1; request <= 1001; ++request) {
            session.notePerformed(name(request));
        }
        return true;
    }));
    QVERIFY(!session.wasPerformed(name(1)));
    QVERIFY(session.wasPerformed(name(2)));
    // Noting a request again drops no other, whatever was inserted in between.
    Statement(world.book.database().handle(),
              QStringLiteral("INSERT INTO conference (id, conf_id, dial_number, title, host_id, start_msecs,"
                             " duration_msecs, participant_limit)"
                             " VALUES (5000000, 'far', '1', '', 'u100001', 0, 0, 2)"))
        .run();
    session.notePerformed(name(1001));
    QVERIFY(session.wasPerformed(name(2)));
    QVERIFY(session.wasPerformed(name(1001)));
}

QTEST_GUILESS_MAIN(TestDatabase)
#include "tst_database.moc"
