// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "book/friendrequests.h"
#include "core/outcome.h"
#include "core/statement.h"

/// Friend requests to the logged-in user, answered through the book and in the window.
class TestFriendRequests : public ContactsWindowTest
{
    Q_OBJECT

public:
    TestFriendRequests() : ContactsWindowTest(1) {}

private Q_SLOTS:
    void whoAcceptsHasAFriend();
    void whoDeclinesMayBeAskedAgain();
    void anAcceptedRequestAnswersOnesOwn();
    void whoIsAFriendAlreadyIsNotToldOfTheRequest_data();
    void whoIsAFriendAlreadyIsNotToldOfTheRequest();
    void theLimitHolds();
    void whatIsNotThereCannotBeAnswered();
    void theBarShowsOneAfterTheOther();
    void theBarKeepsWhomItShows();
    void theBarIsFirstInTheOrderOfTab();
    void namesAreShownClean();
    void theirCostDoesNotDependOnOtherRequests();

private:
    void ask(const char *asker, const char *asked) const
    {
        QVERIFY(m_fixture->world->admin.AddContact(QString::fromLatin1(asker), QString::fromLatin1(asked),
                                                   QString(), QStringLiteral("requested")));
    }
    ContactsBook &book() const { return m_fixture->world->book; }
    Friendship friendship(const char *owner, const char *person) const
    {
        return book().people().friendship(QString::fromLatin1(owner), QString::fromLatin1(person));
    }
    QStringList waiting() const
    {
        QStringList accounts;
        const QVector<Person> people = FriendRequests(book()).waiting(10);
        for (const Person &person : people) {
            accounts.append(person.account);
        }
        return accounts;
    }
};

void TestFriendRequests::whoAcceptsHasAFriend()
{
    QCOMPARE(waiting(), QStringList());
    ask("200002", "100001");
    ask("100011", "100001"); // a colleague with a remark
    ask("200001", "100002"); // to somebody else
    QCOMPARE(waiting(), (QStringList{QStringLiteral("100011"), QStringLiteral("200002")}));
    FriendRequests requests(book());
    QCOMPARE(requests.waiting(1).size(), 1);
    QCOMPARE(requests.accept(QStringLiteral("100011")), QString(Outcome::Ok));
    QCOMPARE(friendship("u100001", "u100011"), Friendship::Friend);
    QCOMPARE(friendship("u100011", "u100001"), Friendship::Friend);
    QCOMPARE(
        book().people().contactByUserId(QStringLiteral("u100001"), QStringLiteral("u100011"))->remarkName,
        QStringLiteral("研发部张伟"));
    QCOMPARE(waiting(), QStringList{QStringLiteral("200002")});
    QCOMPARE(requests.accept(QStringLiteral("200002")), QString(Outcome::Ok)); // was not among the contacts
    QCOMPARE(friendship("u100001", "u200002"), Friendship::Friend);
    QCOMPARE(waiting(), QStringList());
    QVERIFY(book().reminders().untoldRequests(QStringLiteral("u100001")).isEmpty());
}

void TestFriendRequests::whoDeclinesMayBeAskedAgain()
{
    ask("200002", "100001");
    QCOMPARE(FriendRequests(book()).decline(QStringLiteral("200002")), QString(Outcome::Ok));
    QCOMPARE(waiting(), QStringList());
    QCOMPARE(friendship("u200002", "u100001"), Friendship::None);
    QCOMPARE(friendship("u100001", "u200002"), Friendship::None);
    QVERIFY(book().reminders().untoldRequests(QStringLiteral("u100001")).isEmpty());
    ask("200002", "100001");
    QCOMPARE(waiting(), QStringList{QStringLiteral("200002")});
}

void TestFriendRequests::anAcceptedRequestAnswersOnesOwn()
{
    ask("200002", "100001");
    ask("100001", "200002");
    const int before = book().people().friendCount(QStringLiteral("u100001"));
    m_fixture->world->admin.SetFriendLimit(before); // the user's own request already counts
    QCOMPARE(FriendRequests(book()).accept(QStringLiteral("200002")), QString(Outcome::Ok));
    QCOMPARE(book().people().friendCount(QStringLiteral("u100001")), before);
    QVERIFY(m_fixture->world->admin.Login(QStringLiteral("200002")));
    QCOMPARE(waiting(), QStringList());
}

void TestFriendRequests::whoIsAFriendAlreadyIsNotToldOfTheRequest_data()
{
    QTest::addColumn<QString>("asker");
    QTest::newRow("the one who accepts") << QStringLiteral("u200002");
    QTest::newRow("the one who is accepted") << QStringLiteral("u100001");
}

void TestFriendRequests::whoIsAFriendAlreadyIsNotToldOfTheRequest()
{
    QFETCH(QString, asker);
    const bool isOwn = asker == QLatin1String("u100001");
    const QString asked = isOwn ? QStringLiteral("u200002") : QStringLiteral("u100001");
    ask("200002", "100001");
    ask("100001", "200002");
    QCOMPARE(book().reminders().untoldRequests(asked).size(), 1);
    QCOMPARE(FriendRequests(book()).accept(QStringLiteral("200002")), QString(Outcome::Ok));
    QVERIFY(book().reminders().untoldRequests(asked).isEmpty());
    Statement left(book().database().handle(), QStringLiteral("SELECT count(*) FROM untold_request"));
    QVERIFY(left.run().next());
    QCOMPARE(left.smallNumber(0), 0);
}

void TestFriendRequests::theLimitHolds()
{
    ask("200002", "100001");
    m_fixture->world->admin.SetFriendLimit(book().people().friendCount(QStringLiteral("u100001")));
    QCOMPARE(FriendRequests(book()).accept(QStringLiteral("200002")), QString(Outcome::ExceedFriendLimit));
    QCOMPARE(waiting(), QStringList{QStringLiteral("200002")}); // nothing has changed
    QCOMPARE(friendship("u100001", "u200002"), Friendship::None);
}

void TestFriendRequests::whatIsNotThereCannotBeAnswered()
{
    ask("200002", "100001");
    FriendRequests requests(book());
    QCOMPARE(requests.accept(QStringLiteral("200001")), QString(Outcome::NotFound));
    QCOMPARE(requests.accept(QStringLiteral("nobody")), QString(Outcome::NotFound));
    QCOMPARE(requests.decline(QString()), QString(Outcome::NotFound));
    m_fixture->world->admin.Logout();
    QCOMPARE(requests.accept(QStringLiteral("200002")), QString(Outcome::NotLoggedIn));
    QCOMPARE(waiting(), QStringList());
}

void TestFriendRequests::theBarShowsOneAfterTheOther()
{
    auto *bar = m_fixture->child<QWidget>("requests");
    auto *text = m_fixture->child<QLabel>("requestText");
    QVERIFY(!bar->isVisible());
    ask("200001", "100001");
    ask("100005", "100001");
    m_fixture->follow();
    QVERIFY(bar->isVisible());
    QCOMPARE(text->text(), QStringLiteral("小刘（100005）想加您为好友。还有 1 个申请。"));
    QCOMPARE(m_fixture->child<QPushButton>("acceptRequest")->accessibleDescription(), text->text());
    m_fixture->click("declineRequest");
    QCOMPARE(m_fixture->told(), QStringLiteral("已谢绝好友申请。"));
    QCOMPARE(text->text(), QStringLiteral("孟欣（200001）想加您为好友。"));
    m_fixture->click("acceptRequest");
    QCOMPARE(m_fixture->told(), QStringLiteral("已成为好友。"));
    QVERIFY(!bar->isVisible());
    m_fixture->follow();
    m_fixture->pick("peopleScope", 1);
    QCOMPARE(m_fixture->page(1)->table()->model()->rowCount(), 4);

    // The request is withdrawn before the window follows.
    ask("200002", "100001");
    m_fixture->follow();
    Statement(book().database().handle(), QStringLiteral("DELETE FROM friend_request")).run();
    m_fixture->click("acceptRequest");
    QCOMPARE(m_fixture->told(), QStringLiteral("没有找到。"));
    QVERIFY(!bar->isVisible());
}

void TestFriendRequests::theBarKeepsWhomItShows()
{
    auto *text = m_fixture->child<QLabel>("requestText");
    ask("200001", "100001");
    m_fixture->follow();
    QCOMPARE(text->text(), QStringLiteral("孟欣（200001）想加您为好友。"));
    ask("100005", "100001"); // sorts first, by account
    m_fixture->follow();
    QCOMPARE(text->text(), QStringLiteral("孟欣（200001）想加您为好友。还有 1 个申请。"));
    m_fixture->click("acceptRequest");
    QCOMPARE(friendship("u100001", "u200001"), Friendship::Friend);
    QCOMPARE(waiting(), QStringList{QStringLiteral("100005")});
    QCOMPARE(text->text(), QStringLiteral("小刘（100005）想加您为好友。"));
}

void TestFriendRequests::theBarIsFirstInTheOrderOfTab()
{
    ask("200001", "100001");
    m_fixture->follow();
    auto *accept = m_fixture->child<QPushButton>("acceptRequest");
    accept->setFocus();
    QStringList names;
    for (int step = 0; step < 3; ++step) {
        names.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names, (QStringList{QStringLiteral("acceptRequest"), QStringLiteral("declineRequest"),
                                 QStringLiteral("peopleFilter")}));
    const QWidget *filter = m_fixture->page(1)->filter();
    QVERIFY(accept->mapToGlobal(QPoint(0, accept->height())).y() <= filter->mapToGlobal(QPoint()).y());
}

void TestFriendRequests::namesAreShownClean()
{
    QVERIFY(m_fixture->world->admin.AddPerson(
        QStringLiteral("300001"), QStringLiteral("\u202e<b>李</b>").repeated(30), QStringLiteral("free")));
    ask("300001", "100001");
    m_fixture->follow();
    auto *text = m_fixture->child<QLabel>("requestText");
    QVERIFY2(text->text().startsWith(QStringLiteral("<b>李</b>")), qPrintable(text->text()));
    QCOMPARE(text->textFormat(), Qt::PlainText);
    QVERIFY(m_fixture->child<QPushButton>("declineRequest")->geometry().right() <
            m_fixture->child<QWidget>("requests")->width());
    QVERIFY(m_fixture->window->minimumSizeHint().width() < 1000);
}

void TestFriendRequests::theirCostDoesNotDependOnOtherRequests()
{
    Statement plan(
        book().database().handle(),
        QStringLiteral("EXPLAIN QUERY PLAN SELECT owner_id FROM friend_request WHERE person_id = ?"));
    QVERIFY(plan.bind(QStringLiteral("u100001")).run().next());
    QVERIFY2(plan.text(3).contains(QStringLiteral("friend_request_of_person")), qPrintable(plan.text(3)));
}

QTEST_MAIN(TestFriendRequests)
#include "tst_friendrequests.moc"
