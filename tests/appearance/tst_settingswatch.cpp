// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "settingswatch.h"

#include <QSaveFile>
#include <QtTest>

class TestSettingsWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWriteIsTold_data();
    void aWriteIsTold();
    void aBurstIsToldOnce();
    void steadyWritesAreTold();
    void whatHappensAboveTheFolderIsNotTold();

private:
    static void replace(const QString &name, const QByteArray &content)
    {
        QSaveFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        QVERIFY(file.commit());
    }
    static void writeInPlace(const QString &name, const QByteArray &content)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
};

void TestSettingsWatch::aWriteIsTold_data()
{
    QTest::addColumn<bool>("hasFolder");
    QTest::addColumn<bool>("hasFile");
    QTest::newRow("the file is there") << true << true;
    QTest::newRow("only its folder") << true << false;
    QTest::newRow("nothing") << false << false;
}

void TestSettingsWatch::aWriteIsTold()
{
    QFETCH(bool, hasFolder);
    QFETCH(bool, hasFile);
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("organization/program.conf"));
    if (hasFolder) {
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("organization")));
    }
    if (hasFile) {
        writeInPlace(name, "1");
    }
    SettingsWatch watch(name);
    QSignalSpy changed(&watch, &SettingsWatch::changed);
    if (!hasFolder) {
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("organization")));
        QVERIFY(changed.wait());
    }
    // The signal comes both for a replaced file and for one written in place.
    for (int round = 0; round < 2; ++round) {
        replace(name, "22");
        QVERIFY(changed.wait());
        writeInPlace(name, "333");
        QVERIFY(changed.wait());
    }
}

void TestSettingsWatch::aBurstIsToldOnce()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("program.conf"));
    SettingsWatch watch(name);
    QSignalSpy changed(&watch, &SettingsWatch::changed);
    for (int i = 0; i < 20; ++i) {
        replace(name, QByteArray::number(i));
    }
    QVERIFY(changed.wait());
    QVERIFY(!changed.wait(200));
    QCOMPARE(changed.count(), 1);
}

void TestSettingsWatch::steadyWritesAreTold()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("program.conf"));
    SettingsWatch watch(name);
    QSignalSpy changed(&watch, &SettingsWatch::changed);
    QTimer writes;
    int round = 0;
    connect(&writes, &QTimer::timeout, this, [&] { replace(name, QByteArray::number(++round)); });
    writes.start(5); // shorter than the watch's burst interval
    QVERIFY(changed.wait(2000));
    QVERIFY(changed.wait(2000));
}

void TestSettingsWatch::whatHappensAboveTheFolderIsNotTold()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("organization/program.conf"));
    SettingsWatch watch(name);
    QSignalSpy changed(&watch, &SettingsWatch::changed);
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("organization")));
    QVERIFY(changed.wait());
    replace(folder.filePath(QStringLiteral("somebody.conf")), "1");
    QVERIFY(!changed.wait(300));
    replace(name, "22");
    QVERIFY(changed.wait());
    // The folder is removed and comes back.
    QVERIFY(QDir(folder.filePath(QStringLiteral("organization"))).removeRecursively());
    QVERIFY(changed.wait());
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("organization")));
    replace(name, "333");
    QVERIFY(changed.wait());
}

QTEST_MAIN(TestSettingsWatch)
#include "tst_settingswatch.moc"
