// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactservicetest.h"

#include <QPointer>
#include <QTest>

/// How the service treats its handlers: replies, failures, exceptions and lifetimes.
class TestServiceHandlers : public ContactServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheFirstIntentIsCarriedOut();
    void unsupportedPhrasingIsAnsweredByTheService();
    void handlersReplyIsCopiedWhole();
    void replyWithoutCardIsForcedToTexts();
    void failedIntentIsLoggedAndAnswered();
    void textReplyDropsTheFormerCard();
    void formerHandlerIsKeptAndTheLastDeleted();
    void exceptionOfAHandlerStaysInside();
    void exceptionInAReplyStaysInside();
    void handlerThatDoesNotAnswerLeavesTheReply();
};

void TestServiceHandlers::onlyTheFirstIntentIsCarriedOut()
{
    const ScriptedHandler *handler = prepareHandler();
    QCOMPARE(
        m_service->service(QStringLiteral("{\"intent\":{\"semantic\":[{\"intent\":\"SCRIPTED\",\"slots\":[]},"
                                          "{\"intent\":\"UNKNOWN\",\"slots\":[]}]}}")),
        0);
    QCOMPARE(handler->actions, 1);
    QCOMPARE(handler->actedOn, QStringLiteral("SCRIPTED"));
    compareReply(m_service->getServiceReply(), 0, "好的。", "好的。", 3);
    QCOMPARE(handler->repliedTo, QStringLiteral("SCRIPTED"));
    compareRecords(*m_log, SourceName, {});
}

void TestServiceHandlers::unsupportedPhrasingIsAnsweredByTheService()
{
    ScriptedHandler *handler = prepareHandler();
    handler->result = -24;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), -21);
    compareReply(m_service->getServiceReply(), -24, "对不起，暂不支持该说法。", "对不起，暂不支持该说法。",
                 3);
    QCOMPARE(handler->replies, 0);
    compareRecords(
        *m_log, SourceName,
        {{QtCriticalMsg, QStringLiteral("Handle specify intent failed:  -24"), serviceSignature()}});
}

void TestServiceHandlers::handlersReplyIsCopiedWhole()
{
    ScriptedHandler *handler = prepareHandler();
    char card = 0;
    handler->nextReply.code = 7;
    handler->nextReply.displayText = QStringLiteral("shown");
    handler->nextReply.speechText = QStringLiteral("spoken");
    handler->nextReply.widget = reinterpret_cast<QWidget *>(&card);
    handler->nextReply.type = 11;
    handler->nextReply.endOfSession = false;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);

    const Reply *reply = m_service->getServiceReply();
    QCOMPARE(handler->repliedCode, 0);
    QCOMPARE(reply->code, QVariant(7));
    QCOMPARE(reply->displayText, QVariant(QStringLiteral("shown")));
    QCOMPARE(reply->speechText, QVariant(QStringLiteral("spoken")));
    QCOMPARE(reply->widget, handler->nextReply.widget);
    QCOMPARE(reply->type, 11);
    QVERIFY(!reply->endOfSession);
    QVERIFY(reply != handler->getReply());
}

void TestServiceHandlers::replyWithoutCardIsForcedToTexts()
{
    prepareHandler()->nextReply = Reply(0, QStringLiteral("好的。"), 11);
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    compareReply(m_service->getServiceReply(), 0, "好的。", "好的。", 3);
}

void TestServiceHandlers::failedIntentIsLoggedAndAnswered()
{
    ScriptedHandler *handler = prepareHandler();
    handler->result = -16005;
    handler->nextReply = Reply(-16005, QStringLiteral("没有。"), 3);
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), -21);
    compareReply(m_service->getServiceReply(), -16005, "没有。", "没有。", 3);
    QCOMPARE(handler->repliedCode, -16005);
    compareRecords(
        *m_log, SourceName,
        {{QtCriticalMsg, QStringLiteral("Handle specify intent failed:  -16005"), serviceSignature()}});
}

void TestServiceHandlers::textReplyDropsTheFormerCard()
{
    char card = 0;
    ScriptedHandler *handler = prepareHandler();
    handler->nextReply.widget = reinterpret_cast<QWidget *>(&card);
    handler->nextReply.type = 11;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QVERIFY(m_service->getServiceReply()->widget != nullptr);

    QCOMPARE(m_service->service(SemanticText::of("UNKNOWN")), -21);
    compareReply(m_service->getServiceReply(), -21, "对不起，暂不支持该功能。", "对不起，暂不支持该功能。",
                 3);

    ScriptedHandler *again = prepareHandler();
    again->nextReply = handler->nextReply;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QVERIFY(m_service->getServiceReply()->widget != nullptr);
    QCOMPARE(m_service->service(SemanticText::openDialogue("几点？", "请问几点？")), 0);
    compareReply(m_service->getServiceReply(), 0, "几点？", "请问几点？", 3);
}

void TestServiceHandlers::formerHandlerIsKeptAndTheLastDeleted()
{
    const QPointer<ScriptedHandler> former(prepareHandler());
    const QPointer<ScriptedHandler> last(prepareHandler());
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QVERIFY(!former.isNull());
    QVERIFY(!last.isNull());
    m_service.reset();
    QVERIFY(!former.isNull());
    QVERIFY(last.isNull());
}

void TestServiceHandlers::exceptionOfAHandlerStaysInside()
{
    ScriptedHandler *handler = prepareHandler();
    handler->throws = true;
    handler->nextReply = Reply(-1, QStringLiteral("操作失败"), 3);
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), -21);
    compareReply(m_service->getServiceReply(), -1, "操作失败", "操作失败", 3);
    QCOMPARE(handler->repliedCode, -1);
    QCOMPARE(m_log->texts(QtCriticalMsg).size(), 2);
}

void TestServiceHandlers::exceptionInAReplyStaysInside()
{
    prepareHandler()->throwsInReply = true;
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    const Reply *reply = m_service->getServiceReply();
    QCOMPARE(reply->code, QVariant(-1));
    QCOMPARE(reply->type, 3);
    QCOMPARE(m_log->texts(QtCriticalMsg).size(), 1);
}

void TestServiceHandlers::handlerThatDoesNotAnswerLeavesTheReply()
{
    QCOMPARE(m_service->service(SemanticText::of("MUTE")), 0);
    const Reply *reply = m_service->getServiceReply();
    QCOMPARE(reply->code, QVariant(0));
    QVERIFY(!reply->displayText.isValid());
}

QTEST_GUILESS_MAIN(TestServiceHandlers)
#include "tst_servicehandlers.moc"
