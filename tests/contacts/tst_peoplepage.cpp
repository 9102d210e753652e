// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include <QLineEdit>

/// The page of people over the sample directory.
class TestPeoplePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aFriendIsAdded();
    void namesAreShownClean();

private:
    std::unique_ptr<WindowFixture> m_fixture;
};

void TestPeoplePage::init()
{
    m_fixture = std::make_unique<WindowFixture>();
    QVERIFY(m_fixture->waitUntilShown());
}

void TestPeoplePage::cleanup()
{
    m_fixture.reset();
}

void TestPeoplePage::aFriendIsAdded()
{
    m_fixture->window->findChild<QTabWidget *>()->setCurrentIndex(1);
    QTest::keyClicks(m_fixture->child<QLineEdit>("friendAccount"), QStringLiteral("100031"));
    m_fixture->click("addFriend");
    QCOMPARE(m_fixture->told(), QStringLiteral("好的。"));
    m_fixture->follow();
    m_fixture->page(1)->filter()->setText(QStringLiteral("100005"));
    QCOMPARE(m_fixture->page(1)->table()->model()->index(0, 0).data().toString(),
             QStringLiteral("小刘（刘洋）"));
    m_fixture->page(1)->filter()->setText(QStringLiteral("已发送好友申请"));
    QCOMPARE(m_fixture->page(1)->table()->model()->rowCount(), 1);
    QTest::keyClicks(m_fixture->child<QLineEdit>("friendAccount"), QStringLiteral("100001"));
    QTest::keyClick(m_fixture->child<QLineEdit>("friendAccount"), Qt::Key_Return);
    QCOMPARE(m_fixture->told(), QStringLiteral("无法添加自己为好友。"));
}

void TestPeoplePage::namesAreShownClean()
{
    const QString hostile = QStringLiteral("\u202e李\u0007 <b>四</b>\u200b");
    QVERIFY(m_fixture->world->admin.AddPerson(QStringLiteral("300001"), hostile, QStringLiteral("free")));
    QVERIFY(m_fixture->world->admin.AddContact(QStringLiteral("100001"), QStringLiteral("300001"), hostile,
                                               QStringLiteral("friend")));
    m_fixture->follow();
    m_fixture->window->findChild<QTabWidget *>()->setCurrentIndex(1);
    m_fixture->page(1)->filter()->setText(QStringLiteral("300001"));
    QCOMPARE(m_fixture->page(1)->table()->model()->index(0, 0).data().toString(),
             QStringLiteral("李 <b>四</b>"));
    const QString tip = m_fixture->page(1)->table()->model()->index(0, 0).data(Qt::ToolTipRole).toString();
    QVERIFY2(tip.contains(QStringLiteral("&lt;b&gt;")), qPrintable(tip));
}

QTEST_MAIN(TestPeoplePage)
#include "tst_peoplepage.moc"
