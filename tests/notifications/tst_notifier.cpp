// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "notificationserver.h"
#include "notifier.h"
#include "testcolumns.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QtTest>

namespace {

Notifier::Program testProgram()
{
    return {QStringLiteral("Tester"), QStringLiteral("tester-icon"), QStringLiteral("org.example.tester")};
}

Notification greeting()
{
    return {QStringLiteral("title"),
            QStringLiteral("<b>a & b</b>"),
            {QStringLiteral("join"), QStringLiteral("加入")}};
}

/// Returns how the greeting reaches a server with @p capabilities; empty if it doesn't.
NotificationServer::Shown shownBy(const QStringList &capabilities)
{
    const NotificationServer server(capabilities);
    Notifier notifier(QDBusConnection::sessionBus(), testProgram());
    notifier.show(greeting(), [](Notifier::Result, quint32) {});
    return QTest::qWaitFor([&server] { return server.shown.size() == 1; }) ? server.last()
                                                                           : NotificationServer::Shown();
}

} // namespace

/// The client of the desktop's notification server, on a bus with nothing else on it.
class TestNotifier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void markupIsEscapedOnlyForServersThatReadIt_data();
    void markupIsEscapedOnlyForServersThatReadIt();
    void actionsAreSentOnlyToServersThatHaveThem_data();
    void actionsAreSentOnlyToServersThatHaveThem();
    void programIsNamed();
    void noServerRefuses();
    void onlySignalsOfTheServerThatShowedCount();
};

void TestNotifier::markupIsEscapedOnlyForServersThatReadIt_data()
{
    addColumns<QStringList, QString>({"capabilities", "body"});
    QTest::newRow("markup") << QStringList{QStringLiteral("body"), QStringLiteral("body-markup")}
                            << QStringLiteral("&lt;b&gt;a &amp; b&lt;/b&gt;");
    QTest::newRow("plain") << QStringList{QStringLiteral("body")} << QStringLiteral("<b>a & b</b>");
}

void TestNotifier::markupIsEscapedOnlyForServersThatReadIt()
{
    QFETCH(QStringList, capabilities);
    QTEST(shownBy(capabilities).body, "body");
}

void TestNotifier::actionsAreSentOnlyToServersThatHaveThem_data()
{
    addColumns<QStringList, QStringList>({"capabilities", "actions"});
    QTest::newRow("with") << QStringList{QStringLiteral("actions")} << greeting().actions;
    QTest::newRow("without") << QStringList() << QStringList();
}

void TestNotifier::actionsAreSentOnlyToServersThatHaveThem()
{
    QFETCH(QStringList, capabilities);
    QTEST(shownBy(capabilities).actions, "actions");
}

void TestNotifier::programIsNamed()
{
    NotificationServer server;
    server.listenTo(testProgram().name);
    Notifier notifier(QDBusConnection::sessionBus(), testProgram());
    notifier.show(greeting(), [](Notifier::Result, quint32) {});
    QTRY_COMPARE(server.shown.size(), 1);
    QCOMPARE(server.last().icon, testProgram().icon);
}

void TestNotifier::noServerRefuses()
{
    Notifier notifier(QDBusConnection::sessionBus(), testProgram());
    std::optional<Notifier::Result> result;
    notifier.show(greeting(), [&result](Notifier::Result given, quint32 id) {
        result = given;
        QCOMPARE(id, 0U);
    });
    QTRY_VERIFY(result.has_value());
    QVERIFY(*result == Notifier::Result::Refused);
}

void TestNotifier::onlySignalsOfTheServerThatShowedCount()
{
    NotificationServer server;
    Notifier notifier(QDBusConnection::sessionBus(), testProgram());
    QVector<quint32> invoked;
    connect(&notifier, &Notifier::actionInvoked, this, [&invoked](quint32 id) { invoked.append(id); });
    notifier.show(greeting(), [](Notifier::Result, quint32) {});
    QTRY_COMPARE(server.shown.size(), 1);
    const quint32 id = server.last().id;

    QDBusMessage forged = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"),
                                                     QStringLiteral("org.freedesktop.Notifications"),
                                                     QStringLiteral("ActionInvoked"));
    forged.setArguments({id, QStringLiteral("forged")});
    QVERIFY(QDBusConnection::sessionBus().send(forged));
    // The bus orders messages per sender only: wait for a round trip, so that the forged signal has arrived.
    QVERIFY(QDBusConnection::sessionBus().interface()->isServiceRegistered(
        QStringLiteral("org.freedesktop.Notifications")));
    QCoreApplication::processEvents();
    QCOMPARE(invoked, QVector<quint32>());
    server.click(id, QStringLiteral("join"));
    QTRY_COMPARE(invoked, QVector<quint32>{id});
}

QTEST_GUILESS_MAIN(TestNotifier)
#include "tst_notifier.moc"
