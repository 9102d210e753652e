// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakecontacts.h"
#include "namereader.h"

#include <QtTest>

using namespace devhost;

namespace {

/// Collects what a reader on another thread has emitted.
class Told : public QVector<QStringList>
{
public:
    explicit Told(const NameReader &reader)
    {
        QObject::connect(&reader, &NameReader::read, &m_context,
                         [this](const QStringList &names) { append(names); });
    }

private:
    QObject m_context;
};

} // namespace

/// The known names while the contacts application or the bus is in trouble.
class TestNameReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusalLeavesTheNamesThatWereKnown();
    void busThatComesLaterIsFound();
    void onlySoManyNamesAreTakenAndNoneThatIsTooLong();
};

/// A busy application that missed one deadline used to leave the launchers without any names.
void TestNameReader::refusalLeavesTheNamesThatWereKnown()
{
    const QStringList names{QStringLiteral("张伟"), QStringLiteral("李娜")};
    FakeContacts contacts(names);
    auto *reader = new NameReader;
    const Told told(*reader);
    BusThread thread(reader);
    thread.start();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.last(), names);

    contacts.refuse();
    contacts.change({QStringLiteral("王芳")});
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.last(), names);

    // An empty answer counts.
    contacts.answer();
    contacts.change({});
    QTRY_COMPARE(told.size(), 3);
    QCOMPARE(told.last(), QStringList());
}

void TestNameReader::busThatComesLaterIsFound()
{
    constexpr int retryMsecs = 20;
    const QStringList names{QStringLiteral("张伟")};
    const FakeContacts contacts(names);
    const QByteArray ours = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    auto *reader = new NameReader(retryMsecs);
    const Told told(*reader);
    BusThread thread(reader);
    thread.start();
    // Without a bus, the reader reports that there are no names.
    const bool isTold = QTest::qWaitFor([&told] { return told.size() > 0; });
    qputenv("DBUS_SESSION_BUS_ADDRESS", ours);
    QVERIFY(isTold);
    QCOMPARE(told.first(), QStringList());
    QTRY_COMPARE(told.last(), names);
}

/// Another program may have taken the application's name.
void TestNameReader::onlySoManyNamesAreTakenAndNoneThatIsTooLong()
{
    constexpr int most = 10000;
    constexpr int longest = 400;
    const QString longName(longest, QChar(u'长'));
    QStringList names{longName, longName + QChar(u'长'), QString()};
    for (int name = 0; name < most; ++name) {
        names.append(QStringLiteral("第%1位").arg(name));
    }
    FakeContacts contacts(names.mid(0, most + 2)); // all that can be used
    auto *reader = new NameReader;
    const Told told(*reader);
    BusThread thread(reader);
    thread.start();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.last(), QStringList(longName) + names.mid(3, most - 1));

    contacts.change(names);
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.last(), QStringList(longName) + names.mid(3, most - 1));
}

QTEST_GUILESS_MAIN(TestNameReader)
#include "tst_namereader.moc"
