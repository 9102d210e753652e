// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactreplywidget.h"

#include "cardsamples.h"
#include "conferencecardinterface.h"
#include "conferencemsgstaticwidget.h"
#include "logcapture.h"
#include "scriptedability.h"
#include "signalactiontype.h"
#include "testcolumns.h"

#include <QPushButton>
#include <QtTest>

#include <limits>
#include <memory>

using namespace CardSamples;

namespace {

/// The kinds of card that the dispatcher builds.
enum class Kind { Empty, Editable, Single, List, Candidates };

Kind kindOf(const ConferenceMsgStaticWidget &card)
{
    if (card.findChildren<QWidget *>().isEmpty()) {
        return Kind::Empty;
    }
    if (button(card, QStringLiteral("修 改")) != nullptr) {
        return Kind::Editable;
    }
    if (button(card, QStringLiteral("确 认")) != nullptr) {
        return Kind::Candidates;
    }
    return card.mode() == ConferenceMsgStaticWidget::Single ? Kind::Single : Kind::List;
}

QVariant created(int conferenceCount)
{
    ContactCreatedConferenceDetail detail = createdDetail();
    detail.conferences = conferences(conferenceCount);
    return QVariant::fromValue(detail);
}

QVariant found(int conferenceCount)
{
    return QVariant::fromValue(ContactQueryConferenceDetail{conferences(conferenceCount)});
}

/// The card for a result of type @p actionType, requested as the intent handlers do.
std::unique_ptr<ConferenceMsgStaticWidget> cardFor(int actionType, const QVariant &data)
{
    Reply reply(0, QStringLiteral("文本"), Reply::Texts);
    ConferenceCardInterface::instance()->noticeSentActionSignals(actionType, data, &reply);
    return std::unique_ptr<ConferenceMsgStaticWidget>(
        qobject_cast<ConferenceMsgStaticWidget *>(reply.widget));
}

} // namespace

class TestContactReplyWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCardOfEachAction_data();
    void theCardOfEachAction();
    void onlyTheCardBitIsAdded_data();
    void onlyTheCardBitIsAdded();
    void theCardOfTheFormerResultIsReplaced();
    void aResultWithoutAReplyIsIgnored();
    void theSecondCreatedConferenceDoesNotReachTheFirstCard();
    void theLimitIsLogged();
    void onlyTheLimitIsLogged();
    void itHoldsItsMembersInOrderAndNothingElse();
    void whatACardAnswersIsPassedOn();
    void aCardOnAnotherThreadMayAnswerToo();
};

Q_DECLARE_METATYPE(Kind)

void TestContactReplyWidget::theCardOfEachAction_data()
{
    addColumns<int, QVariant, Kind, QString>({"actionType", "data", "kind", "shownText"});

    const QVariant invite = QVariant::fromValue(inviteDetail());
    const QString candidate = QStringLiteral("张三（市场部）");
    const QString resolved = QStringLiteral("赵六");
    const QString first = QStringLiteral("会议1");
    QTest::newRow("0: a created conference can be changed")
        << int(Create_Success) << created(2) << Kind::Editable << first;
    QTest::newRow("0: without a conference the card is empty")
        << int(Create_Success) << created(0) << Kind::Empty << QString();
    QTest::newRow("0: a record of another kind counts as empty")
        << int(Create_Success) << invite << Kind::Empty << QString();
    QTest::newRow("1: people to create a conference with")
        << int(Create_Duplicate) << created(0) << Kind::Candidates << candidate;
    QTest::newRow("2: the first conference in the way")
        << int(Create_TimeOverlap) << created(2) << Kind::Single << first;
    QTest::newRow("2: without a conference the card is empty")
        << int(Create_TimeOverlap) << created(0) << Kind::Empty << QString();
    QTest::newRow("3: people to invite") << int(Invite_Duplicate) << invite << Kind::Candidates << candidate;
    QTest::newRow("4: people to invite, those found at once too")
        << int(Invite_ExceedLimit) << invite << Kind::Candidates << resolved;
    for (const int actionType : {int(JoinMy_List), int(Query_List)}) {
        QTest::addRow("%d: no conference", actionType) << actionType << found(0) << Kind::Empty << QString();
        QTest::addRow("%d: one conference", actionType) << actionType << found(1) << Kind::Single << first;
        QTest::addRow("%d: two conferences", actionType)
            << actionType << found(2) << Kind::List << QStringLiteral("会议2");
        QTest::addRow("%d: a record of another kind", actionType)
            << actionType << created(2) << Kind::Empty << QString();
    }
    QTest::newRow("7: unknown") << 7 << created(2) << Kind::Empty << QString();
    QTest::newRow("far above: unknown")
        << std::numeric_limits<int>::max() << created(2) << Kind::Empty << QString();
    QTest::newRow("-1: unknown") << -1 << created(2) << Kind::Empty << QString();
    QTest::newRow("far below: unknown")
        << std::numeric_limits<int>::min() << created(2) << Kind::Empty << QString();
}

void TestContactReplyWidget::theCardOfEachAction()
{
    QFETCH(int, actionType);
    QFETCH(QVariant, data);
    QFETCH(Kind, kind);
    QFETCH(QString, shownText);
    const LogCapture log;
    const ContactReplyWidget dispatcher;
    const auto card = cardFor(actionType, data);
    QVERIFY(card);
    QCOMPARE(card->parent(), nullptr);
    QCOMPARE(kindOf(*card), kind);
    if (!shownText.isEmpty()) {
        QVERIFY2(texts(*card).contains(shownText), qPrintable(texts(*card).join(QLatin1Char('|'))));
    }
}

void TestContactReplyWidget::onlyTheCardBitIsAdded_data()
{
    addColumns<int, int, int>({"actionType", "before", "after"});
    QTest::newRow("to the texts") << int(Query_List) << 3 << 11;
    QTest::newRow("to nothing") << int(Query_List) << 0 << 8;
    QTest::newRow("to itself") << int(Query_List) << 11 << 11;
    QTest::newRow("to other bits") << int(Query_List) << 0x70 << 0x78;
    QTest::newRow("for an unknown action too") << 7 << 3 << 11;
}

void TestContactReplyWidget::onlyTheCardBitIsAdded()
{
    QFETCH(int, actionType);
    QFETCH(int, before);
    const LogCapture log;
    const ContactReplyWidget dispatcher;
    Reply reply(-16001, QStringLiteral("文本"), before);
    ConferenceCardInterface::instance()->noticeSentActionSignals(actionType, found(1), &reply);
    const std::unique_ptr<QWidget> card(reply.widget);
    QTEST(reply.type, "after");
    QCOMPARE(reply.code.toInt(), -16001);
    QCOMPARE(reply.displayText.toString(), QStringLiteral("文本"));
    QCOMPARE(reply.speechText.toString(), QStringLiteral("文本"));
}

void TestContactReplyWidget::theCardOfTheFormerResultIsReplaced()
{
    const LogCapture log;
    const ContactReplyWidget dispatcher;
    QWidget former;
    Reply reply(0, QString(), Reply::Texts);
    reply.widget = &former;
    ConferenceCardInterface::instance()->noticeSentActionSignals(Query_List, found(1), &reply);
    const std::unique_ptr<QWidget> card(reply.widget);
    QVERIFY(card && card.get() != &former);
}

void TestContactReplyWidget::aResultWithoutAReplyIsIgnored()
{
    const LogCapture log;
    const ContactReplyWidget dispatcher;
    ConferenceCardInterface::instance()->noticeSentActionSignals(Query_List, found(1), nullptr);
    QVERIFY(QApplication::allWidgets().isEmpty());
}

void TestContactReplyWidget::theSecondCreatedConferenceDoesNotReachTheFirstCard()
{
    const LogCapture log;
    const ContactReplyWidget dispatcher;
    const auto first = cardFor(Create_Success, created(1));
    {
        ContactCreatedConferenceDetail other = createdDetail();
        other.conferences = conferences(2);
        other.conferences.removeFirst();
        const auto second = cardFor(Create_Success, QVariant::fromValue(other));
        QVERIFY(texts(*second).contains(QStringLiteral("会议2")));
    }
    QCOMPARE(kindOf(*first), Kind::Editable);
    QVERIFY(texts(*first).contains(QStringLiteral("会议1")));
    // Cancelling rebuilds the card, which shows that it kept its own conference.
    ScriptedAbility::instance().reset();
    ScriptedAbility::instance().setAnswer(QStringLiteral("Delete Conference"), 0,
                                          QStringLiteral(R"({"ret":"OK"})"));
    first->slotCancleConference();
    QCOMPARE(kindOf(*first), Kind::Single);
    QVERIFY(texts(*first).contains(QStringLiteral("会议1")));
}

void TestContactReplyWidget::theLimitIsLogged()
{
    const LogCapture log;
    ContactReplyWidget dispatcher;
    ContactInviteMemberDetail detail = inviteDetail();
    detail.canInviteNum = 2;
    detail.notExistUsers = {QStringLiteral("甲"), QStringLiteral("乙")};
    const auto card = cardFor(Invite_ExceedLimit, QVariant::fromValue(detail));
    const QString text = QStringLiteral(R"(+++++Invite_ExceedLimit: 2 1 QVector("甲", "乙"))");
    QVERIFY2(log.contains(QtDebugMsg, text), qPrintable(log.lines().join(QLatin1Char('\n'))));
    const LogRecord record = log.find(text);
    QCOMPARE(record.file, QByteArray("ui/contactreplywidget.cpp"));
    QCOMPARE(LogCapture::signatureOf(record.function),
             LogCapture::signatureOf(
                 "void ContactReplyWidget::slotNoticeAction(const int&, const QVariant&, Reply*)"));
    QCOMPARE(record.category, QByteArray("default"));
}

void TestContactReplyWidget::onlyTheLimitIsLogged()
{
    const LogCapture log;
    const ContactReplyWidget dispatcher;
    const auto card = cardFor(Invite_Duplicate, QVariant::fromValue(inviteDetail()));
    QCOMPARE(log.lines(), QStringList{QStringLiteral("debug: Signals: ActionType 3")});
}

void TestContactReplyWidget::itHoldsItsMembersInOrderAndNothingElse()
{
    QCOMPARE(sizeof(ContactReplyWidget),
             sizeof(QObject) + 2 * sizeof(void *) + sizeof(ContactCreatedConferenceDetail));
}

void TestContactReplyWidget::whatACardAnswersIsPassedOn()
{
    const LogCapture log;
    ContactReplyWidget dispatcher;
    QVector<Reply> heard;
    connect(&dispatcher, &ContactReplyWidget::signaleSendShowMessage, this,
            [&heard](const Reply &reply) { heard.append(reply); });
    const auto first = cardFor(Query_List, found(1));
    const auto second = cardFor(Query_List, found(2));
    Q_EMIT first->signalSendShowMessgae(Reply(0, QStringLiteral("一"), 3));
    Q_EMIT second->signalSendShowMessgae(Reply(-5, QStringLiteral("二"), 11));
    QCOMPARE(heard.size(), 2);
    QCOMPARE(heard.first().code.toInt(), 0);
    QCOMPARE(heard.first().displayText.toString(), QStringLiteral("一"));
    QCOMPARE(heard.first().speechText.toString(), QStringLiteral("一"));
    QCOMPARE(heard.first().type, 3);
    QCOMPARE(heard.last().code.toInt(), -5);
    QCOMPARE(heard.last().displayText.toString(), QStringLiteral("二"));
    QCOMPARE(heard.last().type, 11);
}

void TestContactReplyWidget::aCardOnAnotherThreadMayAnswerToo()
{
    const LogCapture log;
    ContactReplyWidget dispatcher;
    QStringList heard;
    connect(&dispatcher, &ContactReplyWidget::signaleSendShowMessage, this,
            [&heard](const Reply &reply) { heard.append(reply.displayText.toString()); });
    const auto card = cardFor(Query_List, found(1));
    const std::unique_ptr<QThread> other(QThread::create(
        [&card] { Q_EMIT card->signalSendShowMessgae(Reply(0, QStringLiteral("远处"), 3)); }));
    other->start();
    QVERIFY(other->wait());
    QTRY_COMPARE(heard, QStringList{QStringLiteral("远处")});
}

QTEST_MAIN(TestContactReplyWidget)
#include "tst_contactreplywidget.moc"
