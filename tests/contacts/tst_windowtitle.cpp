// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "logcapture.h"
#include "window/applicationicon.h"
#include "window/contactswindow.h"
#include "window/windowtitle.h"

#include <QTabWidget>
#include <QtTest>

/// The title and icon in the desktop's window lists.
class TestWindowTitle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itSaysWhereOneIs();
    void itSaysWhoIsLoggedIn();
    void aNameIsShownAsItIs();
    void theWindowHasAnIcon();
};

void TestWindowTitle::itSaysWhereOneIs()
{
    const LogCapture log;
    SampleWorld world;
    const ContactsWindow window(world.book, world.admin);
    auto *pages = window.findChild<QTabWidget *>();
    QCOMPARE(window.windowTitle(), QStringLiteral("会议 – 王小明 – 联系人与会议"));
    pages->setCurrentIndex(1);
    QCOMPARE(window.windowTitle(), QStringLiteral("联系人 – 王小明 – 联系人与会议"));
    pages->setCurrentIndex(2);
    QCOMPARE(window.windowTitle(), QStringLiteral("提醒 – 王小明 – 联系人与会议"));
}

void TestWindowTitle::itSaysWhoIsLoggedIn()
{
    const LogCapture log;
    SampleWorld world;
    const ContactsWindow window(world.book, world.admin);
    QVERIFY(world.admin.Login(QStringLiteral("100002")));
    QTRY_COMPARE(window.windowTitle(), QStringLiteral("会议 – 李静 – 联系人与会议"));
    world.admin.Logout();
    QTRY_COMPARE(window.windowTitle(), QStringLiteral("会议 – 未登录 – 联系人与会议"));
}

void TestWindowTitle::aNameIsShownAsItIs()
{
    const LogCapture log;
    SampleWorld world;
    QVERIFY(world.admin.AddPerson(QStringLiteral("300001"), QStringLiteral("甲\u202e[*]"),
                                  QStringLiteral("free")));
    QVERIFY(world.admin.Login(QStringLiteral("300001")));
    ContactsWindow window(world.book, world.admin);
    window.show();
    // The desktop gets the literal name: "[*]" must not act as Qt's placeholder.
    QCOMPARE(window.windowHandle()->title(), QStringLiteral("会议 – 甲[*] – 联系人与会议"));
}

void TestWindowTitle::theWindowHasAnIcon()
{
    const LogCapture log;
    SampleWorld world;
    const ContactsWindow window(world.book, world.admin);
    for (const int size : {16, 48, 128}) {
        const QImage picture = window.windowIcon().pixmap(size).toImage();
        QVERIFY2(picture.width() >= qMin(size, 48), qPrintable(QString::number(picture.width())));
        QVERIFY(picture.pixelColor(picture.width() / 2, picture.height() / 2).alpha() == 255);
    }
}

QTEST_MAIN(TestWindowTitle)
#include "tst_windowtitle.moc"
