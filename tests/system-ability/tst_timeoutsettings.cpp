// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencecardinterface.h"
#include "configmanager.h"
#include "contactutils.h"
#include "fakeprocesstable.h"
#include "testcolumns.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

/// A request gets its answer whatever number the configuration file has, from the file to the bus and back.
class TestTimeoutSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRequestIsAnswered_data();
    void aRequestIsAnswered();
};

void TestTimeoutSettings::aRequestIsAnswered_data()
{
    addColumns<QString, QString>({"key", "value"});
    constexpr qint64 largest = std::numeric_limits<int>::max();
    constexpr qint64 smallest = std::numeric_limits<int>::min();
    for (const char *key : {"TimeOut", "MaxTimeOut"}) {
        for (const qint64 value : {smallest - 1, smallest, smallest + 1, qint64(-1), qint64(0), qint64(500),
                                   qint64(501), qint64(5000), qint64(5001), qint64(15000), largest - 1001,
                                   largest - 1000, largest - 999, largest - 1, largest, largest + 1}) {
            QTest::addRow("%s is %lld", key, value) << QString::fromLatin1(key) << QString::number(value);
        }
    }
}

void TestTimeoutSettings::aRequestIsAnswered()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("contact.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    // The other value is the shipped one; it is written too, since values of earlier rows persist.
    QJsonObject settings{{QStringLiteral("TimeOut"), QStringLiteral("5000")},
                         {QStringLiteral("MaxTimeOut"), QStringLiteral("15000")}};
    settings.insert(key, value);
    file.write(QJsonDocument(QJsonObject{{QStringLiteral("Contact"), settings}}).toJson());
    file.close();
    QVERIFY(ConfigManager::instance()->init(file.fileName()));

    // TimeOut applies while the application runs, MaxTimeOut while it does not.
    const FakeProcessTable processes(key == QLatin1String("TimeOut") ? 1 : 0);
    const int limit = key == QLatin1String("TimeOut") ? 500 : 5000;
    const int expected = value.toInt() > limit             ? value.toInt()
                         : key == QLatin1String("TimeOut") ? 5000
                                                           : 15000;
    QCOMPARE(ContactUtils::timeoutInit(), expected);
    if (expected > 1000) {
        QCOMPARE(ConferenceCardInterface::instance()->openConferenceList(), 0);
    } else {
        // A busy machine may not answer within the short time-out.
        const int code = ConferenceCardInterface::instance()->openConferenceList();
        QVERIFY2(code == 0 || code == -16020, qPrintable(QString::number(code)));
    }
}

QTEST_GUILESS_MAIN(TestTimeoutSettings)
#include "tst_timeoutsettings.moc"
