// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "window/peoplemodel.h"

#include <QAction>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>

/// The people page, over the sample directory.
class TestPeoplePage : public ContactsWindowTest
{
    Q_OBJECT

public:
    TestPeoplePage() : ContactsWindowTest(1) {}

private Q_SLOTS:
    void aFriendIsAdded();
    void whoCannotBeAddedIsToldInTheDialog();
    void theSelectedOneIsAdded();
    void whoHasAskedIsAccepted_data();
    void whoHasAskedIsAccepted();
    void peopleAreFoundByNameRemarkAndAccount_data();
    void peopleAreFoundByNameRemarkAndAccount();
    void friendsAndRequestsAreLeftAlone();
    void theSelectionSurvivesASearch();
    void anEmptyListSaysWhy();
    void whoIsLoggedOutCanDoNothing();
    void theMenuIsAboutTheSelectedOne();
    void tabGoesAsOneReads();
    void longTextsLeaveRoomForTheOthers();
    void namesAreShownClean();

private:
    QAbstractItemModel *model() const { return page()->table()->model(); }
    TablePage *page() const { return m_fixture->page(1); }
    QStringList accounts() const
    {
        QStringList found;
        for (int row = 0; row < model()->rowCount(); ++row) {
            found.append(model()->index(row, PeopleModel::Account).data().toString());
        }
        return found;
    }
    QString hint() const { return page()->table()->accessibleDescription(); }
};

void TestPeoplePage::aFriendIsAdded()
{
    m_fixture->click("addFriend");
    auto *said = m_fixture->child<QLineEdit>("friendAccount");
    QVERIFY(!m_fixture->child<QPushButton>("sendRequest")->isEnabled());
    QTest::keyClicks(said, QStringLiteral(" 200001 ")); // not among the contacts
    QTest::keyClick(said, Qt::Key_Return);
    QCOMPARE(m_fixture->told(), QStringLiteral("好友申请已发送。"));
    QTRY_VERIFY(!m_fixture->window->findChild<QLineEdit *>(QStringLiteral("friendAccount")));
    QTRY_VERIFY(accounts().contains(QStringLiteral("200001")));
    m_fixture->pick("peopleScope", 2);
    QCOMPARE(accounts(), QStringList{QStringLiteral("200001")});
    QCOMPARE(model()->index(0, PeopleModel::Relation).data().toString(), QStringLiteral("已发送好友申请"));
}

void TestPeoplePage::whoCannotBeAddedIsToldInTheDialog()
{
    m_fixture->click("addFriend");
    auto *said = m_fixture->child<QLineEdit>("friendAccount");
    const auto answerTo = [this, said](const char *text) {
        said->setText(QString::fromUtf8(text));
        m_fixture->click("sendRequest");
        return m_fixture->child<QLabel>("friendResult")->text();
    };
    QCOMPARE(answerTo("100001"), QStringLiteral("无法添加自己为好友。"));
    QCOMPARE(m_fixture->child<QLabel>("friendResult")->accessibleName(),
             QStringLiteral("结果：无法添加自己为好友。"));
    QCOMPARE(answerTo("100003"), QStringLiteral("已经添加过该好友。"));
    QCOMPARE(answerTo("张伟"), QStringLiteral("没有找到，或有多人同名，请填写账号。"));
    QTRY_VERIFY(said->isVisible() && said->hasFocus());
    QCOMPARE(said->selectedText(), QStringLiteral("张伟")); // typing replaces it
    QCOMPARE(m_fixture->told(), QString());
    QTest::keyClick(said, Qt::Key_Escape);
    QTRY_VERIFY(!m_fixture->window->findChild<QLineEdit *>(QStringLiteral("friendAccount")));
}

void TestPeoplePage::theSelectedOneIsAdded()
{
    auto *befriend = m_fixture->child<QPushButton>("befriend");
    auto *entry = m_fixture->child<QAction>("befriendEntry");
    QVERIFY(!befriend->isEnabled() && !entry->isEnabled());
    page()->select(QStringLiteral("100003")); // a friend
    QVERIFY(!befriend->isEnabled() && !entry->isEnabled());
    page()->select(QStringLiteral("100031"));
    QVERIFY(befriend->isEnabled() && entry->isEnabled());
    m_fixture->click("befriend");
    QCOMPARE(m_fixture->told(), QStringLiteral("好友申请已发送。"));
    QTRY_VERIFY(!befriend->isEnabled() && !entry->isEnabled());
    page()->select(QStringLiteral("100032"));
    entry->trigger();
    QTRY_VERIFY(!entry->isEnabled());
    m_fixture->pick("peopleScope", 2);
    QCOMPARE(accounts(), (QStringList{QStringLiteral("100031"), QStringLiteral("100032")}));
    // The same rules apply as for the spoken command.
    m_fixture->world->admin.SetFriendLimit(0);
    m_fixture->pick("peopleScope", 0);
    page()->select(QStringLiteral("100033"));
    entry->trigger();
    QCOMPARE(m_fixture->told(), QStringLiteral("好友已超过最大限制。"));
}

void TestPeoplePage::whoHasAskedIsAccepted_data()
{
    QTest::addColumn<QString>("said");
    QTest::newRow("the selected one") << QString();
    QTest::newRow("by the account, in the dialog") << QStringLiteral("100031");
    QTest::newRow("by the name, in the dialog")
        << SampleWorld().book.people().byAccount(QStringLiteral("100031"))->name;
}

void TestPeoplePage::whoHasAskedIsAccepted()
{
    QFETCH(QString, said);
    QVERIFY(m_fixture->world->admin.AddContact(QStringLiteral("100031"), QStringLiteral("100001"), QString(),
                                               QStringLiteral("requested")));
    if (said.isEmpty()) {
        page()->select(QStringLiteral("100031"));
        m_fixture->click("befriend");
    } else {
        m_fixture->click("addFriend");
        m_fixture->child<QLineEdit>("friendAccount")->setText(said);
        m_fixture->click("sendRequest");
    }
    QCOMPARE(m_fixture->told(), QStringLiteral("对方已申请加您为好友，已成为好友。"));
    const PeopleRepository &people = m_fixture->world->book.people();
    QCOMPARE(people.friendship(QStringLiteral("u100001"), QStringLiteral("u100031")), Friendship::Friend);
    QCOMPARE(people.friendship(QStringLiteral("u100031"), QStringLiteral("u100001")), Friendship::Friend);
    QVERIFY(people.requestsTo(QStringLiteral("u100001"), 10).isEmpty());
}

void TestPeoplePage::peopleAreFoundByNameRemarkAndAccount_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("found");
    const auto row = [](const char *name, const char *text, const QStringList &found) {
        QTest::newRow(name) << QString::fromUtf8(text) << found;
    };
    row("the name behind a remark", "刘洋", {QStringLiteral("100005")});
    row("the remark", "小刘", {QStringLiteral("100005")});
    row("a part of the account", "0004",
        {QStringLiteral("100040"), QStringLiteral("100041"), QStringLiteral("100042"),
         QStringLiteral("100043"), QStringLiteral("100044"), QStringLiteral("100004")});
    row("with spaces around", "  李娜 ", {QStringLiteral("100003")});
    row("Latin letters of another case", "BOB", {QStringLiteral("300001")});
    row("no pattern", ".*", {});
    row("not what a column says besides", "好友", {});
}

void TestPeoplePage::peopleAreFoundByNameRemarkAndAccount()
{
    QFETCH(QString, text);
    QFETCH(QStringList, found);
    QVERIFY(m_fixture->world->admin.AddPerson(QStringLiteral("300001"), QStringLiteral("Bob"),
                                              QStringLiteral("free")));
    QVERIFY(m_fixture->world->admin.AddContact(QStringLiteral("100001"), QStringLiteral("300001"), QString(),
                                               QStringLiteral("colleague")));
    m_fixture->follow();
    page()->filter()->setFocus();
    page()->filter()->setText(text);
    found.sort();
    QCOMPARE(accounts(), found);
    QTest::keyClick(page()->filter(), Qt::Key_Escape);
    QCOMPARE(accounts().size(), 24);
}

void TestPeoplePage::friendsAndRequestsAreLeftAlone()
{
    m_fixture->pick("peopleScope", 1);
    QCOMPARE(accounts(),
             (QStringList{QStringLiteral("100003"), QStringLiteral("100004"), QStringLiteral("100005")}));
    page()->filter()->setText(QStringLiteral("刘"));
    QCOMPARE(accounts(), QStringList{QStringLiteral("100005")});
    m_fixture->pick("peopleScope", 2);
    QVERIFY(accounts().isEmpty());
}

void TestPeoplePage::theSelectionSurvivesASearch()
{
    page()->select(QStringLiteral("100005"));
    page()->filter()->setText(QStringLiteral("刘"));
    QCOMPARE(page()->selected(PeopleModel::AccountRole).toString(), QStringLiteral("100005"));
    page()->table()->sortByColumn(PeopleModel::Name, Qt::DescendingOrder);
    page()->filter()->clear();
    QCOMPARE(page()->selected(PeopleModel::AccountRole).toString(), QStringLiteral("100005"));
    QCOMPARE(accounts().size(), 23);
}

void TestPeoplePage::anEmptyListSaysWhy()
{
    page()->filter()->setText(QStringLiteral("没有这个人"));
    QVERIFY2(hint().contains(QStringLiteral("没有找到“没有这个人”")), qPrintable(hint()));
    m_fixture->pick("peopleScope", 2);
    page()->filter()->clear();
    QCOMPARE(hint(), QStringLiteral("没有等待回答的好友申请。"));
    m_fixture->pick("peopleScope", 0);
    m_fixture->world->admin.Logout();
    m_fixture->follow();
    QVERIFY2(hint().startsWith(QStringLiteral("还没有登录。")), qPrintable(hint()));
    QVERIFY(accounts().isEmpty());
    m_fixture->world->admin.Login(QStringLiteral("200001"));
    m_fixture->follow();
    QVERIFY2(hint().startsWith(QStringLiteral("还没有联系人。")), qPrintable(hint()));
    m_fixture->pick("peopleScope", 1);
    QVERIFY2(hint().startsWith(QStringLiteral("还没有好友。")), qPrintable(hint()));
    // The hint is painted, too.
    const QImage hinted = page()->table()->viewport()->grab().toImage();
    page()->table()->setHint(QString());
    QVERIFY(page()->table()->viewport()->grab().toImage() != hinted);
}

void TestPeoplePage::whoIsLoggedOutCanDoNothing()
{
    QVERIFY(m_fixture->child<QPushButton>("addFriend")->isEnabled());
    page()->select(QStringLiteral("100031"));
    m_fixture->world->admin.Logout();
    m_fixture->follow();
    QVERIFY(!m_fixture->child<QPushButton>("addFriend")->isEnabled());
    QVERIFY(!m_fixture->child<QPushButton>("befriend")->isEnabled());
    QVERIFY(!m_fixture->child<QAction>("copyAccount")->isEnabled());
}

void TestPeoplePage::theMenuIsAboutTheSelectedOne()
{
    page()->select(QStringLiteral("100005"));
    page()->table()->setFocus();
    QTest::keyClick(page()->table(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("100005"));
    QCOMPARE(m_fixture->told(), QStringLiteral("已复制账号。"));
    QCOMPARE(page()->table()->contextMenuPolicy(), Qt::ActionsContextMenu);
    QVERIFY(page()->table()->actions().contains(m_fixture->child<QAction>("befriendEntry")));
    QVERIFY(page()->table()->actions().contains(m_fixture->child<QAction>("copyAccount")));
}

void TestPeoplePage::tabGoesAsOneReads()
{
    page()->select(QStringLiteral("100031"));
    page()->filter()->setFocus();
    QVector<QRect> places;
    QStringList names;
    while (page()->isAncestorOf(QApplication::focusWidget()) && places.size() < 10) {
        QWidget *focus = QApplication::focusWidget();
        places.append(QRect(focus->mapTo(page(), QPoint()), focus->size()));
        names.append(focus->objectName());
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    QCOMPARE(names, (QStringList{QStringLiteral("peopleFilter"), QStringLiteral("peopleScope"),
                                 QStringLiteral("addFriend"), QStringLiteral("people"),
                                 QStringLiteral("befriend")}));
    for (int i = 1; i < places.size(); ++i) {
        const bool isRight = places.at(i).left() >= places.at(i - 1).right();
        const bool isBelow = places.at(i).top() >= places.at(i - 1).bottom();
        QVERIFY2(isRight || isBelow, qPrintable(names.at(i)));
    }
}

void TestPeoplePage::longTextsLeaveRoomForTheOthers()
{
    const QString length(100, QLatin1Char('9'));
    QVERIFY(m_fixture->world->admin.AddPerson(length, length, QStringLiteral("free")));
    QVERIFY(m_fixture->world->admin.AddContact(QStringLiteral("100001"), length, length,
                                               QStringLiteral("colleague")));
    m_fixture->follow();
    page()->filter()->setText(QStringLiteral("999"));
    QCOMPARE(accounts().size(), 1);
    const QHeaderView *header = page()->table()->horizontalHeader();
    for (int column = 0; column < PeopleModel::ColumnCount; ++column) {
        QVERIFY2(header->sectionSize(column) >= 60, qPrintable(QString::number(column)));
        QVERIFY(header->sectionViewportPosition(column) + header->sectionSize(column) <=
                page()->table()->viewport()->width());
    }
}

void TestPeoplePage::namesAreShownClean()
{
    const QString hostile = QStringLiteral("\u202e李\u0007 <b>四</b>\u200b");
    QVERIFY(m_fixture->world->admin.AddPerson(QStringLiteral("300001"), hostile, QStringLiteral("free")));
    QVERIFY(m_fixture->world->admin.AddContact(QStringLiteral("100001"), QStringLiteral("300001"), hostile,
                                               QStringLiteral("friend")));
    m_fixture->follow();
    page()->filter()->setText(QStringLiteral("300001"));
    QCOMPARE(model()->index(0, 0).data().toString(), QStringLiteral("李 <b>四</b>"));
    const QString tip = model()->index(0, 0).data(Qt::ToolTipRole).toString();
    QVERIFY2(tip.contains(QStringLiteral("&lt;b&gt;")), qPrintable(tip));
}

QTEST_MAIN(TestPeoplePage)
#include "tst_peoplepage.moc"
